// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYWALLCLOCKSYNCTIME_H
#define VYSMIL_VYWALLCLOCKSYNCTIME_H

#include <VySmil/vysmil.h>

#include <QDate>
#include <QString>

/// A wall-clock time, "wallclock(2004-05-06T12:30:05.5+01:30)" (W3C SMIL 2.0, Timing: Wallclock-sync-value).
///
/// Fields are cut out by position: a date of 4, 2 and 2 characters, an optional "T", a time of 2 and 2
/// characters and seconds, "Z" or a sign with an offset of 2 and 2 characters. Any character parts them, and
/// no field is checked against a range. There is a date if the text holds two "-".
///
/// A read changes only the fields that it reaches, and a failed one keeps those before the fault: a time
/// without seconds or zone keeps those of an earlier read. A date that the calendar does not have is null,
/// and no failure. A zone without a time of day is dropped but for its sign, and no failure either:
/// "wallclock(2004-05-06T-05:00)" is the date alone.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyWallClockSyncTime
{
public:
    /// Reads a text with or without "wallclock(" and ")".
    int fromString(const QString &text);
    /// The time is left out where it and the offset are zero. The offset is padded with blanks: "+ 1:30".
    [[nodiscard]] QString toString() const;

    QDate date;                 ///< null if there is none
    quint32 hours = 0;          ///< of the time of day
    quint32 minutes = 0;        ///< of the time of day
    float seconds = 0;          ///< of the time of day, with fraction
    bool utc = false;           ///< ends in "Z"
    bool offsetPositive = true; ///< the sign of the zone offset
    quint32 offsetHours = 0;    ///< of the zone offset
    quint32 offsetMinutes = 0;  ///< of the zone offset
};

Q_DECLARE_TYPEINFO(VySmil::VyWallClockSyncTime, Q_RELOCATABLE_TYPE);

#endif
