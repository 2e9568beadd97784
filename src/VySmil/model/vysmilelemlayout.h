// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMLAYOUT_H
#define VYSMIL_VYSMILELEMLAYOUT_H

#include <VySmil/model/vysmilelembase.h>

/// The "layout" in the head: one root layout and the regions (W3C SMIL 2.0, Layout). Accepts no attribute.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemLayout : public VySmilElemBase
{
public:
    VySmilElemLayout();
    /// A copy of the whole tree.
    VySmilElemLayout(const VySmilElemLayout &other);
    ~VySmilElemLayout() override;

    [[nodiscard]] QString getElemType() const override;
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;
};

#endif
