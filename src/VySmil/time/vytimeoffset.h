// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMEOFFSET_H
#define VYSMIL_VYTIMEOFFSET_H

#include <VySmil/time/vytimeclock.h>

#include <QString>

/// An offset: a sign and a clock value, "+5s", "-00:01:30" (W3C SMIL 2.0, Timing: Offset-value). The sign is
/// required, blanks behind it are allowed.
///
/// A read that finds no sign changes nothing; one that fails behind it keeps the sign and what the clock
/// value left.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimeOffset
{
public:
    /// Reads \a text: see above.
    int fromString(const QString &text);
    /// "+5s", "-01:30.000000".
    [[nodiscard]] QString toString() const;

    bool positive = true; ///< the sign
    VyTimeClock clock;    ///< the magnitude
};

Q_DECLARE_TYPEINFO(VySmil::VyTimeOffset, Q_RELOCATABLE_TYPE);

#endif
