// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILELEMMEDIAOBJ_H
#define VYSMIL_VYSMILELEMMEDIAOBJ_H

#include <VySmil/model/vysmilattrmedia.h>
#include <VySmil/model/vysmilattrtiming.h>
#include <VySmil/model/vysmilelembase.h>

/// Base of the media objects: what a slide shows or plays (W3C SMIL 2.0, Media Objects).
///
/// Accepts "src", "begin", "end", "dur", "alt" and "region"; audio objects do not accept "region".
///
/// \see [Editing a message](editing.md)
class VYSMIL_EXPORT VySmilElemMediaObj : public VySmilElemBase
{
public:
    VySmilElemMediaObj();
    ~VySmilElemMediaObj() override;

    [[nodiscard]] bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;

    /// The group with begin, end and duration; owned by the element.
    [[nodiscard]] VySmilAttrTiming *getTimingAttrsProxy() noexcept { return &timingAttrsProxy; }
    /// The same to look at.
    [[nodiscard]] const VySmilAttrTiming *getTimingAttrsProxy() const noexcept { return &timingAttrsProxy; }

    /// The group with the source of the media; owned by the element.
    [[nodiscard]] VySmilAttrMedia *getMediaAttrsProxy() noexcept { return &mediaAttrsProxy; }
    /// The same to look at.
    [[nodiscard]] const VySmilAttrMedia *getMediaAttrsProxy() const noexcept { return &mediaAttrsProxy; }

    /// The identifier of the region that shows the media.
    [[nodiscard]] QString getRegion() const;
    /// Stores \a region unchanged.
    void setRegion(const QString &region);
    /// The text to show where the media cannot be.
    [[nodiscard]] QString getAlt() const;
    /// Stores \a alt unchanged.
    void setAlt(const QString &alt);

private:
    VySmilAttrTiming timingAttrsProxy{this};
    VySmilAttrMedia mediaAttrsProxy{this};
};

#endif
