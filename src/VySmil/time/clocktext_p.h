// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_CLOCKTEXT_P_H
#define VYSMIL_CLOCKTEXT_P_H

#include <VySmil/time/vytimeoffset.h>

namespace VySmilPrivate {

// The fromString() of the clock values and the offset, for callers that hold a part of a text.

int readTime(QStringView text, VySmil::VyTimeCount &time);
int readTime(QStringView text, VySmil::VyTimeFullClock &time);
int readTime(QStringView text, VySmil::VyTimePartialClock &time);
int readTime(QStringView text, VySmil::VyTimeClock &time);
int readTime(QStringView text, VySmil::VyTimeOffset &time);

/// Seconds with six decimals, and a "0" in front of a single digit before the point.
QString secondsText(float seconds);

/// The text of \a rest before the first \a separator, which is cut off \a rest with it. Null, with \a rest as
/// it was, if there is none.
QStringView cutAt(QChar separator, QStringView &rest);

/// Cuts the id of an element and the "." behind it off \a rest. False, with nothing changed, if there is no
/// ".".
bool takeId(QStringView &rest, QString &id);

} // namespace VySmilPrivate

#endif
