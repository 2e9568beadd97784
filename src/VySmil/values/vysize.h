// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSIZE_H
#define VYSMIL_VYSIZE_H

#include <VySmil/vysmil.h>

#include <QString>

/// A size with a unit: whole pixels or a percentage ("-5px", "12.5%").
///
/// A failed read leaves 0 pixels if the text holds "px"; else, if it holds "%", the fraction of the number
/// that it begins with, or 0; else what was there before.
class VYSMIL_EXPORT VySmil::VySize
{
public:
    /// The number, as "unit" says.
    union Value {
        qint32 pixels = 0; ///< while "unit" is UNIT_PIXELS
        float fraction;    ///< while "unit" is UNIT_PERCENT: 50% is 0.5
    };

    /// Reads the number before the first "px", else before the first "%"; what follows the unit is ignored.
    int fromString(const QString &text);
    /// A percentage is printed with at most six significant digits.
    [[nodiscard]] QString toString() const;

    UNIT_KIND unit = UNIT_NONE; ///< pixels, percent or none
    Value value;                ///< the number
};

Q_DECLARE_TYPEINFO(VySmil::VySize, Q_RELOCATABLE_TYPE);

#endif
