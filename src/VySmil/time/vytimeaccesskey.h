// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMEACCESSKEY_H
#define VYSMIL_VYTIMEACCESSKEY_H

#include <VySmil/time/vytimeoffset.h>

#include <QString>

/// A time tied to a key press, "accesskey(a)+0s" (W3C SMIL 2.0, Timing: Accesskey-value). The offset is
/// required.
///
/// A failed read keeps the fields that it stored before the fault.
/// Without "accesskey(", ")" or a key nothing changes.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimeAccessKey
{
public:
    /// Reads any text as the key, and ignores what stands before the keyword.
    int fromString(const QString &text);
    /// The text of the value.
    [[nodiscard]] QString toString() const;

    QString key = QStringLiteral(""); ///< the key, as text
    VyTimeOffset offset;              ///< added to that instant
};

Q_DECLARE_TYPEINFO(VySmil::VyTimeAccessKey, Q_RELOCATABLE_TYPE);

#endif
