// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYMEDIALENGTH_H
#define VYSMIL_VYMEDIALENGTH_H

#include <VySmil/vysmil.h>

#include <QString>

/// A length of media: a signed whole number without a unit, or a percentage ("-5", "12.5%").
///
/// A failed read leaves the kind that the text claims, NUMBER_PERCENT if it ends in "%", with the number that
/// the percentage begins with, or 0.
class VYSMIL_EXPORT VySmil::VyMediaLength
{
public:
    /// The number, as "kind" says.
    union Value {
        qint32 number = 0; ///< while "kind" is NUMBER_ABSOLUTE
        float percent;     ///< while "kind" is NUMBER_PERCENT: 50% is 50
    };

    /// Reads \a text: see above.
    int fromString(const QString &text);
    /// A percentage is printed with six decimals: "50.000000%".
    [[nodiscard]] QString toString() const;

    NUMBER_KIND kind = NUMBER_NONE; ///< number, percentage or none
    Value value;                    ///< the number
};

Q_DECLARE_TYPEINFO(VySmil::VyMediaLength, Q_RELOCATABLE_TYPE);

#endif
