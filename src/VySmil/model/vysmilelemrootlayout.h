// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMROOTLAYOUT_H
#define VYSMIL_VYSMILELEMROOTLAYOUT_H

#include <VySmil/model/vysmilelembase.h>

/// The "root-layout": the size of the whole picture (W3C SMIL 2.0, Layout). Accepts "width" and "height".
class VYSMIL_EXPORT VySmilElemRootLayout : public VySmilElemBase
{
public:
    VySmilElemRootLayout();
    ~VySmilElemRootLayout() override;

    QString getElemType() const override;
    bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;
};

#endif
