// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMECOUNT_H
#define VYSMIL_VYTIMECOUNT_H

#include <VySmil/vysmil.h>

#include <QString>

/// A timecount: a number with an optional metric, "12.5s", "3min", "1.5h", "250ms", "30" (W3C SMIL 2.0,
/// Timing: Timecount-val). Without a metric the number is seconds.
///
/// A failed read leaves the metric that the text ends in, and the number that it begins with, or 0.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimeCount
{
public:
    /// The unit of a timecount.
    enum TIME_METRIC : qint32 {
        METRIC_H = 0,   ///< hours
        METRIC_MIN = 1, ///< minutes
        METRIC_S = 2,   ///< seconds
        METRIC_MS = 3,  ///< milliseconds
    };

    /// Reads a number, negative ones too, with a metric in any letter case.
    int fromString(const QString &text);
    /// At most six significant digits and the metric: "1.5h", "1.23457e+06s".
    [[nodiscard]] QString toString() const;
    /// The length in whole milliseconds, the rest dropped; the nearest end of the range for what lies outside
    /// of 32 bits, 0 for what is no number.
    [[nodiscard]] qint32 toMilliSeconds() const noexcept;

    float value = 0;               ///< in units of "metric"
    TIME_METRIC metric = METRIC_S; ///< the unit
};

Q_DECLARE_TYPEINFO(VySmil::VyTimeCount, Q_RELOCATABLE_TYPE);

#endif
