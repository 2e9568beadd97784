// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILSLIDE_H
#define VYSMIL_VYSMILSLIDE_H

#include <VySmil/message/vysmilmedium.h>

#include <QList>

/// One slide of a message: what is shown and played at the same time.
///
/// \see [Showing a received message](showing.md)
class VYSMIL_EXPORT VySmilSlide
{
public:
    qint32 durationMs = 0;                ///< how long it lasts
    QList<VySmilMedium> media;            ///< in document order
    VySmilMedium::GUESSES guesses;        ///< of the slide alone, without those of its media
    const VySmilElemBase *elem = nullptr; ///< where it comes from, or null; lives as long as the tree

    /// When something changes: 0, every begin and every end, and the duration; ascending, once each.
    QList<qint32> instants() const;
    /// The indices of the media that are there at \a ms from the start, in their order: those that begin then
    /// or before and end later.
    QList<int> mediaAt(qint32 ms) const;
};

#endif
