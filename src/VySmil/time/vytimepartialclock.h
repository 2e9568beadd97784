// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMEPARTIALCLOCK_H
#define VYSMIL_VYTIMEPARTIALCLOCK_H

#include <VySmil/vysmil.h>

#include <QString>

/// A partial clock value: minutes and seconds, "02:05.5" (W3C SMIL 2.0, Timing: Partial-clock-val).
///
/// No field is checked against a range. A read that does not find exactly one ":" changes nothing; one that
/// fails at a field keeps the fields before it.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimePartialClock
{
public:
    /// Reads \a text: see above.
    int fromString(const QString &text);
    /// "02:05.500000".
    [[nodiscard]] QString toString() const;

    quint32 minutes = 0; ///< any number
    float seconds = 0;   ///< with fraction
};

Q_DECLARE_TYPEINFO(VySmil::VyTimePartialClock, Q_PRIMITIVE_TYPE);

#endif
