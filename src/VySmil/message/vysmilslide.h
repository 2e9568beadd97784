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
    Q_GADGET
    Q_PROPERTY(qint32 durationMs MEMBER durationMs)
    Q_PROPERTY(QList<VySmilMedium> media MEMBER media)
    Q_PROPERTY(VySmilMedium::GUESSES guesses MEMBER guesses)

public:
    qint32 durationMs = 0;                ///< how long it lasts; 0 or less counts as 5000
    QList<VySmilMedium> media;            ///< in document order
    VySmilMedium::GUESSES guesses;        ///< of the slide alone, without those of its media
    const VySmilElemBase *elem = nullptr; ///< where it comes from, or null; lives as long as the tree

    /// When \a medium of this slide ends: its end, or that of the slide.
    [[nodiscard]] Q_INVOKABLE qint32 endOf(const VySmilMedium &medium) const noexcept;
    /// When something changes: 0, every begin and every end, and the duration; ascending, once each.
    [[nodiscard]] Q_INVOKABLE QList<qint32> instants() const;
    /// The indices of the media that are there at \a ms from the start, in their order: those that begin then
    /// or before and end later.
    [[nodiscard]] Q_INVOKABLE QList<int> mediaAt(qint32 ms) const;

    /// Whether all fields but the pointers are the same, of the media too.
    bool operator==(const VySmilSlide &other) const noexcept;
    /// Whether a field but the pointers differs.
    bool operator!=(const VySmilSlide &other) const noexcept { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(VySmilSlide, Q_RELOCATABLE_TYPE);

#endif
