// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYINDEX_H
#define VYSMIL_VYINDEX_H

#include <VySmil/vysmil.h>

#include <QString>

/// An index: an unsigned whole number, "auto" or "inherit", as in "z-index" (CSS2).
///
/// After a failed read "kind" is INDEX_NONE and "value" 0.
class VYSMIL_EXPORT VySmil::VyIndex
{
public:
    /// Which form an index has.
    enum INDEX_KIND : qint32 {
        INDEX_AUTO = 0,
        INDEX_VALUE = 1,
        INDEX_INHERIT = 2,
        INDEX_NONE = 3, ///< no value
    };

    /// Reads a number within 32 bits, or a keyword in any letter case.
    int fromString(const QString &text);
    /// The text of the value, empty where there is none.
    [[nodiscard]] QString toString() const;

    INDEX_KIND kind = INDEX_NONE; ///< number, keyword or none
    quint32 value = 0;            ///< the number, while "kind" is INDEX_VALUE
};

Q_DECLARE_TYPEINFO(VySmil::VyIndex, Q_RELOCATABLE_TYPE);

#endif
