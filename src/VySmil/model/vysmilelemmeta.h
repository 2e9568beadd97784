// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMMETA_H
#define VYSMIL_VYSMILELEMMETA_H

#include <VySmil/model/vysmilelembase.h>

/// A "meta" element: a property of the document and its content (W3C SMIL 2.0, Metainformation).
///
/// Accepts "name" and "content".
class VYSMIL_EXPORT VySmilElemMeta : public VySmilElemBase
{
public:
    VySmilElemMeta();
    ~VySmilElemMeta() override;

    QString getElemType() const override;
    bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;
};

#endif
