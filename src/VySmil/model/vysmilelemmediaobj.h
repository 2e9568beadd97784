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
    bool isValidAttr(const QString &name, VySmil::SMIL_VERSION version) const override;

    /// The group with begin, end and duration; owned by the element.
    VySmilAttrTiming *getTimingAttrsProxy() { return &timingAttrsProxy; }
    /// The same to look at.
    const VySmilAttrTiming *getTimingAttrsProxy() const { return &timingAttrsProxy; }

    /// The group with the source of the media; owned by the element.
    VySmilAttrMedia *getMediaAttrsProxy() { return &mediaAttrsProxy; }
    /// The same to look at.
    const VySmilAttrMedia *getMediaAttrsProxy() const { return &mediaAttrsProxy; }

    /// The identifier of the region that shows the media.
    QString getRegion() const;
    /// Stores \a region unchanged.
    void setRegion(const QString &region);
    /// The text to show where the media cannot be.
    QString getAlt() const;
    /// Stores \a alt unchanged.
    void setAlt(const QString &alt);

private:
    VySmilAttrTiming timingAttrsProxy{this};
    VySmilAttrMedia mediaAttrsProxy{this};
};

#endif
