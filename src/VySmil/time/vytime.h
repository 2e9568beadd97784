// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIME_H
#define VYSMIL_VYTIME_H

#include <VySmil/time/vytimeaccesskey.h>
#include <VySmil/time/vytimeclock.h>
#include <VySmil/time/vytimeevent.h>
#include <VySmil/time/vytimemediamarker.h>
#include <VySmil/time/vytimeoffset.h>
#include <VySmil/time/vytimerepeat.h>
#include <VySmil/time/vytimesmpte.h>
#include <VySmil/time/vytimesycbase.h>
#include <VySmil/time/vywallclocksynctime.h>

#include <QString>

/// The value of "begin", "end" and "dur": any time value of SMIL (W3C SMIL 2.0, Timing: attribute value
/// syntax).
///
/// "timeType" says which member is the value. A read sets it as soon as it knows the kind, and lets that
/// member read the text; a failed read keeps the kind and what the member left, and the other members stay as
/// they were.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTime
{
public:
    /// Which kind of time a value is.
    enum TIME_TYPE : qint32 {
        TIME_OFFSET = 0,      ///< "+5s"
        TIME_SYNCBASE = 1,    ///< "intro.end+2s"
        TIME_EVENT = 2,       ///< "button.activateEvent+2s"
        TIME_REPEAT = 3,      ///< "clip.repeat(2)+1s"
        TIME_ACCESSKEY = 4,   ///< "accesskey(a)+0s"
        TIME_MEDIAMARKER = 5, ///< "movie.marker(chapter2)"
        TIME_WALLCLOCK = 6,   ///< "wallclock(2004-05-06T12:00Z)"
        TIME_CLOCK = 7,       ///< "10s", "01:30", "2.5", "npt=10s"
        TIME_TEXT = 8,        ///< any other text, "5" included
        TIME_SMPTE = 9,       ///< "smpte-2501:00:00"
        TIME_PERCENT = 10,    ///< "50%"
        TIME_INDEFINITE = 11, ///< "indefinite"
        TIME_EMPTY = 12,      ///< a blank text: no value
    };

    /// Finds out the kind and reads the text. Keywords win over structure, in this order: "indefinite",
    /// "wallclock", "smpte-", "marker(", "accesskey(", "repeat(", ".begin" and ".end"; then come a sign in
    /// front (an offset), "npt=", a ":" or a metric at the end (a clock value), a "." (an event), and "%" at
    /// the end. Only a text with a "." and behind it a word and a sign is an event before it is a clock
    /// value, also where the word begins with "begin" or "end". What is none of these is text, and never
    /// fails.
    int fromString(const QString &text);
    /// The text of the member that "timeType" selects.
    [[nodiscard]] QString toString() const;

    TIME_TYPE timeType = TIME_EMPTY;   ///< which of the members is the value
    VyTimeOffset offsetTime;           ///< while "timeType" is TIME_OFFSET
    VyTimeSycBase syncBaseTime;        ///< while "timeType" is TIME_SYNCBASE
    VyTimeEvent eventTime;             ///< while "timeType" is TIME_EVENT
    VyTimeRepeat repeatTime;           ///< while "timeType" is TIME_REPEAT
    VyTimeAccessKey accessKeyTime;     ///< while "timeType" is TIME_ACCESSKEY
    VyTimeMediaMarker mediaMarkerTime; ///< while "timeType" is TIME_MEDIAMARKER
    VyWallClockSyncTime wallClockTime; ///< while "timeType" is TIME_WALLCLOCK
    VyTimeClock clockTime;             ///< while "timeType" is TIME_CLOCK
    VyTimeSmpte smpteTime;             ///< while "timeType" is TIME_SMPTE
    QString rawText;                   ///< while "timeType" is TIME_TEXT: trimmed
    quint32 percent = 0;               ///< while "timeType" is TIME_PERCENT
};

Q_DECLARE_TYPEINFO(VySmil::VyTime, Q_RELOCATABLE_TYPE);

#endif
