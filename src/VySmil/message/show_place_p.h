// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_PLACE_P_H
#define VYSMIL_SHOW_PLACE_P_H

#include <VySmil/message/vysmilslide.h>

namespace VySmilPrivate {

/// Where pictures, videos and texts are shown that no region places: the same places in all of a message, so
/// that pictures do not change their size from slide to slide.
class DefaultPlaces
{
public:
    /// For a message that shows \a slides in a root layout of \a size: the upper four fifths for pictures and
    /// videos and the rest for texts, if a slide has a text and something else that is seen, or else all of
    /// it for each.
    DefaultPlaces(const QList<VySmilSlide> &slides, QSize size);

    QRect of(VySmilMedium::MEDIUM_KIND kind) const;

    /// Gives \a medium its place and fit, if it is a picture, video or text.
    void place(VySmilMedium &medium) const;

private:
    QRect m_text;
    QRect m_other;
};

} // namespace VySmilPrivate

#endif
