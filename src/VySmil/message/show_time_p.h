// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_TIME_P_H
#define VYSMIL_SHOW_TIME_P_H

#include <QString>

namespace VySmilPrivate {

/// What a time attribute says about milliseconds.
struct KnownTime
{
    bool isThere = false;      ///< the text is not blank
    bool isReadable = false;   ///< as a VyTime
    bool isIndefinite = false; ///< the keyword
    bool isKnown = false;      ///< a clock value, an offset, or digits alone, which are seconds
    qint32 ms = 0;             ///< while it is known: to the nearest, at least 0, at most what fits
};

KnownTime knownTime(const QString &text);

/// The nearest 32-bit number from 0 on.
qint32 saturatedMs(double ms) noexcept;

} // namespace VySmilPrivate

#endif
