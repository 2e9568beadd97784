// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMUNKNOWN_H
#define VYSMIL_VYSMILELEMUNKNOWN_H

#include <VySmil/model/vysmilelembase.h>

/// An element whose name is not in the vocabulary. It bears any name and accepts every attribute.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemUnknown : public VySmilElemBase
{
public:
    /// An element with an empty name.
    VySmilElemUnknown();
    /// A copy of the whole tree.
    VySmilElemUnknown(const VySmilElemUnknown &other);
    ~VySmilElemUnknown() override;

    [[nodiscard]] QString getElemType() const override;
    /// Stores \a name unchanged. It is written as it stands, so it should be an XML name.
    void setElemType(const QString &name) { elemType = name; }
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;
};

#endif
