// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMECLOCK_H
#define VYSMIL_VYTIMECLOCK_H

#include <VySmil/time/vytimecount.h>
#include <VySmil/time/vytimefullclock.h>
#include <VySmil/time/vytimepartialclock.h>

#include <QString>

/// Any clock value (W3C SMIL 2.0, Timing: Clock-val): a full clock value if the text holds two ":", a partial
/// one if it holds one, else a timecount.
///
/// A read sets "clockType" first and then reads the member that it selects, which keeps what that read
/// leaves; the other members stay as they were.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimeClock
{
public:
    /// Which form a clock value has.
    enum CLOCK_TYPE : qint32 {
        CLOCK_TIMECOUNT = 0,
        CLOCK_FULL = 1,
        CLOCK_PARTIAL = 2,
    };

    /// Reads \a text: see above.
    int fromString(const QString &text);
    /// The text of the member that "clockType" selects.
    [[nodiscard]] QString toString() const;

    CLOCK_TYPE clockType = CLOCK_TIMECOUNT; ///< which of the members is the value
    VyTimeCount timeCount;                  ///< while "clockType" is CLOCK_TIMECOUNT
    VyTimeFullClock fullClock;              ///< while "clockType" is CLOCK_FULL
    VyTimePartialClock partialClock;        ///< while "clockType" is CLOCK_PARTIAL
};

Q_DECLARE_TYPEINFO(VySmil::VyTimeClock, Q_RELOCATABLE_TYPE);

#endif
