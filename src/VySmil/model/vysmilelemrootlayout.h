// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMROOTLAYOUT_H
#define VYSMIL_VYSMILELEMROOTLAYOUT_H

#include <VySmil/model/vysmilelembase.h>
#include <VySmil/values/vylength.h>

/// The "root-layout": the size of the whole picture (W3C SMIL 2.0, Layout). Accepts "width" and "height".
///
/// A typed getter gives what reading the stored text leaves, without a word if that text does not read, and
/// the empty value for an absent attribute. A typed setter stores the printed text, an empty one for an empty
/// value.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemRootLayout : public VySmilElemBase
{
public:
    VySmilElemRootLayout();
    /// A copy of the whole tree.
    VySmilElemRootLayout(const VySmilElemRootLayout &other);
    ~VySmilElemRootLayout() override;

    [[nodiscard]] QString getElemType() const override;
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;

    /// The width of the whole picture.
    [[nodiscard]] VySmil::VyLength getWidth() const;
    /// Stores the text of \a length.
    void setWidth(const VySmil::VyLength &length);
    /// The height of the whole picture.
    [[nodiscard]] VySmil::VyLength getHeight() const;
    /// Stores the text of \a length.
    void setHeight(const VySmil::VyLength &length);
};

#endif
