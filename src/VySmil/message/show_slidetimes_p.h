// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_SLIDETIMES_P_H
#define VYSMIL_SHOW_SLIDETIMES_P_H

#include <VySmil/message/show_document_p.h>

#include <QtGlobal>

#include <optional>
#include <vector>

namespace VySmilPrivate {

/// When a medium is there, from the start of its slide, before that cuts it; in milliseconds.
struct MediumTimes
{
    qint64 begin = 0;
    std::optional<qint64> end; ///< not before the begin; nothing where nobody says
    bool isGuessed = false;
};

/// How long a slide lasts, and when its media are there, in their order.
struct SlideTimes
{
    qint32 durationMs = 0;
    bool isGuessed = false; ///< the duration
    std::vector<MediumTimes> media;
};

/// Finds the times of a slide. \a lengths holds for each of its media how long it is known to play, or 0.
SlideTimes timesOf(const SlideElements &slide, const std::vector<qint32> &lengths, qint32 defaultDurationMs);

} // namespace VySmilPrivate

#endif
