// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_MEDIUMKIND_P_H
#define VYSMIL_MEDIUMKIND_P_H

#include <VySmil/message/vysmilmedium.h>
#include <VySmil/message/vysmilpart.h>

#include <QList>

#include <optional>

class VySmilElemBase;

namespace VySmilPrivate {

/// Whether a part is the SMIL of the message.
bool isSmilPart(const VySmilPart &part);

/// The kind that the MIME type of a part says, if it says one.
std::optional<VySmilMedium::MEDIUM_KIND> kindOfPart(const VySmilPart &part);

/// The kind of a media object by its element name; nothing for any other element.
std::optional<VySmilMedium::MEDIUM_KIND> kindOfElement(const QString &type);

/// The kind of the media object \a elem, which refers to \a part of \a parts, or -1.
VySmilMedium::MEDIUM_KIND kindOf(const VySmilElemBase &elem, const QList<VySmilPart> &parts, int part);

/// Of each of these a phone shows or plays one at a time.
enum Sort {
    SORT_PICTURE = 1,
    SORT_TEXT = 2,
    SORT_SOUND = 4,
};

/// What a medium takes up of a slide, as a sum: a video has sound too.
int sortsOf(VySmilMedium::MEDIUM_KIND kind);

/// How long a medium of this kind, with \a part of \a parts, or -1, is known to play, in milliseconds; 0
/// where that is not known, and for what has no sound.
qint32 knownLength(VySmilMedium::MEDIUM_KIND kind, const QList<VySmilPart> &parts, int part);

} // namespace VySmilPrivate

#endif
