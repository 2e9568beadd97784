// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_KIND_P_H
#define VYSMIL_SHOW_KIND_P_H

#include <VySmil/message/vysmilmedium.h>
#include <VySmil/model/vocabulary_p.h>

#include <optional>

namespace VySmilPrivate {

/// The kind that the MIME type of a part says, if it says one.
std::optional<VySmilMedium::MEDIUM_KIND> kindOfPart(const VySmilPart &part);

/// The kind of a media object by its element; nothing for any other element.
std::optional<VySmilMedium::MEDIUM_KIND> kindOfElement(Elem elem) noexcept;

/// The kind of the media object \a elem, which refers to \a part of \a parts, or -1.
VySmilMedium::MEDIUM_KIND kindOf(Elem elem, const QList<VySmilPart> &parts, int part);

/// The media object that shows or plays a medium of this kind.
Elem elementFor(VySmilMedium::MEDIUM_KIND kind) noexcept;

/// Of each of these a phone shows or plays one at a time.
enum class Sort : quint8 {
    Picture = 1,
    Text = 2,
    Sound = 4,
};
using Sorts = QFlags<Sort>;

/// What a medium takes up of a slide: a video is a picture and has sound too.
Sorts sortsOf(VySmilMedium::MEDIUM_KIND kind) noexcept;

/// Whether it is a picture, a video or a text: what has a place even where no region gives it one.
bool isVisual(VySmilMedium::MEDIUM_KIND kind) noexcept;

/// The fit of what no region places: "meet" for pictures and videos, "scroll" for texts, else empty.
QString usualFit(VySmilMedium::MEDIUM_KIND kind);

/// Whether SMIL has a fit of this name.
bool isFit(QStringView fit) noexcept;

/// How long a medium of this kind, with \a part of \a parts, or -1, is known to play, in milliseconds; 0
/// where that is not known, and for what has no sound.
qint32 knownLength(VySmilMedium::MEDIUM_KIND kind, const QList<VySmilPart> &parts, int part);

} // namespace VySmilPrivate

#endif
