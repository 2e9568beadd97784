// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYLENGTH_H
#define VYSMIL_VYLENGTH_H

#include <VySmil/vysmil.h>

#include <QString>

/// A length of the layout: whole pixels or a percentage (W3C SMIL 2.0, Layout; the lengths of CSS2).
///
/// A failed read leaves 0 pixels, or for a text that ends in "%" the percentage that it begins with, or 0.
///
/// \see [Lengths](lengths.md)
class VYSMIL_EXPORT VySmil::VyLength
{
public:
    /// The number, as "unit" says.
    union Value {
        qint32 pixels = 0; ///< while "unit" is UNIT_PIXELS
        float percent;     ///< while "unit" is UNIT_PERCENT: 50% is 50
    };

    /// Reads the digits that the text starts with as pixels and ignores what follows ("100px", "12.7"), so
    /// that a sign fails; or a percentage, signed or not, with nothing between number and "%".
    int fromString(const QString &text);
    /// "120", or a percentage with six decimals: "50.000000%".
    [[nodiscard]] QString toString() const;

    UNIT_KIND unit = UNIT_NONE; ///< pixels, percent or none
    Value value;                ///< the number
};

Q_DECLARE_TYPEINFO(VySmil::VyLength, Q_RELOCATABLE_TYPE);

#endif
