// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMREGION_H
#define VYSMIL_VYSMILELEMREGION_H

#include <VySmil/model/vysmilattrcommon.h>
#include <VySmil/model/vysmilelembase.h>
#include <VySmil/values/vylength.h>

/// A "region": a named part of the picture that media objects are shown in (W3C SMIL 2.0, Layout).
///
/// Accepts "left", "top", "height", "width", "fit" and "id".
///
/// A typed getter gives what reading the stored text leaves, without a word if that text does not read, and
/// the empty value for an absent attribute. A typed setter stores the printed text, an empty one for an empty
/// value.
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemRegion : public VySmilElemBase
{
public:
    VySmilElemRegion();
    ~VySmilElemRegion() override;

    [[nodiscard]] QString getElemType() const override;
    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;

    /// The group with the identifier; owned by the element.
    [[nodiscard]] VySmilAttrCommon *getCommonAttrsProxy() noexcept { return &commonAttrsProxy; }
    /// The same to look at.
    [[nodiscard]] const VySmilAttrCommon *getCommonAttrsProxy() const noexcept { return &commonAttrsProxy; }

    /// The width, of pixels or of the root layout.
    [[nodiscard]] VySmil::VyLength getWidth() const;
    /// Stores the text of \a length.
    void setWidth(const VySmil::VyLength &length);
    /// The height.
    [[nodiscard]] VySmil::VyLength getHeight() const;
    /// Stores the text of \a length.
    void setHeight(const VySmil::VyLength &length);
    /// The distance from the upper edge of the root layout.
    [[nodiscard]] VySmil::VyLength getTop() const;
    /// Stores the text of \a length.
    void setTop(const VySmil::VyLength &length);
    /// The distance from its left edge.
    [[nodiscard]] VySmil::VyLength getLeft() const;
    /// Stores the text of \a length.
    void setLeft(const VySmil::VyLength &length);
    /// How media fill the region: "fill", "hidden", "meet", "scroll" or "slice".
    [[nodiscard]] QString getFit() const;
    /// Stores \a fit unchanged.
    void setFit(const QString &fit);

private:
    VySmilAttrCommon commonAttrsProxy{this};
};

#endif
