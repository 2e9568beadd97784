// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYCOUNT_H
#define VYSMIL_VYCOUNT_H

#include <VySmil/vysmil.h>

#include <QString>

/// A count: a floating-point number or "indefinite", as in "repeatCount" (W3C SMIL 2.0, Timing).
///
/// After a failed read "kind" is COUNT_NONE and "value" what the text begins with, or 0.
class VYSMIL_EXPORT VySmil::VyCount
{
public:
    /// Which form a count has.
    enum COUNT_KIND : qint32 {
        COUNT_INDEFINITE = 0,
        COUNT_VALUE = 1,
        COUNT_NONE = 2, ///< no value
    };

    /// Reads a number, negative ones too, or the keyword in any letter case.
    int fromString(const QString &text);
    /// At most six significant digits: "2.5", "1e+07".
    [[nodiscard]] QString toString() const;

    COUNT_KIND kind = COUNT_NONE; ///< number, keyword or none
    float value = 1;              ///< the number, while "kind" is COUNT_VALUE
};

Q_DECLARE_TYPEINFO(VySmil::VyCount, Q_RELOCATABLE_TYPE);

#endif
