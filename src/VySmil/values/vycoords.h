// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYCOORDS_H
#define VYSMIL_VYCOORDS_H

#include <VySmil/vysmil.h>

#include <QString>

/// Four coordinates, all in pixels or all in percent: "10,-20,30,40" or "10%,20%,30%,40%", as in "coords"
/// (W3C SMIL 2.0, Linking).
///
/// After a failed read "unit" is UNIT_NONE; the numbers before the fault are stored, and in its slot what the
/// number that failed begins with, or 0. A percentage without its "%" leaves its slot as it was.
class VYSMIL_EXPORT VySmil::VyCoords
{
public:
    /// The number, as "unit" says.
    union Value {
        qint32 pixels = 0; ///< while "unit" is UNIT_PIXELS
        float fraction;    ///< while "unit" is UNIT_PERCENT: 50% is 0.5
    };

    /// Reads percentages if the text holds a "%": exactly four. Of pixels it takes the first four, and
    /// repeats the last one where there are fewer.
    int fromString(const QString &text);
    /// A percentage is printed with at most six significant digits.
    [[nodiscard]] QString toString() const;

    UNIT_KIND unit = UNIT_NONE; ///< what all four numbers are
    Value coords[4];            ///< in the order of the text
};

Q_DECLARE_TYPEINFO(VySmil::VyCoords, Q_RELOCATABLE_TYPE);

#endif
