// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMEREPEAT_H
#define VYSMIL_VYTIMEREPEAT_H

#include <VySmil/time/vytimeoffset.h>

#include <QString>

/// A time tied to an iteration of a repeating element, "clip.repeat(2)+1s" (W3C SMIL 2.0, Timing:
/// Repeat-value). The offset is required.
///
/// A failed read keeps the fields that it stored before the fault. Without "repeat(" nothing changes.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimeRepeat
{
public:
    /// Reads an id with a ".", both of which may be missing: the id then stays as it was.
    int fromString(const QString &text);
    /// Without the id if that is blank: "repeat(2)+1s".
    [[nodiscard]] QString toString() const;

    QString id = QStringLiteral(""); ///< empty for the element that holds the value
    quint32 iteration = 0;           ///< which iteration is meant
    VyTimeOffset offset;             ///< added to that instant
};

Q_DECLARE_TYPEINFO(VySmil::VyTimeRepeat, Q_RELOCATABLE_TYPE);

#endif
