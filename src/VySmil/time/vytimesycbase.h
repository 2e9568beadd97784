// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMESYCBASE_H
#define VYSMIL_VYTIMESYCBASE_H

#include <VySmil/time/vytimeoffset.h>

#include <QString>

/// A time tied to the begin or end of another element, "intro.end+2s" (W3C SMIL 2.0, Timing: Syncbase-value).
/// The offset is required.
///
/// A failed read keeps the fields that it stored before the fault. Without a "." nothing changes.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimeSycBase
{
public:
    /// Reads an id, which ends at the first ".", the keyword in any letter case, and the offset.
    int fromString(const QString &text);
    /// The text of the value.
    [[nodiscard]] QString toString() const;

    QString id = QStringLiteral(""); ///< the element that is meant
    bool isBegin = true;             ///< else the end of the element is meant
    VyTimeOffset offset;             ///< added to that instant
};

Q_DECLARE_TYPEINFO(VySmil::VyTimeSycBase, Q_RELOCATABLE_TYPE);

#endif
