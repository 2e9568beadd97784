// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMEEVENT_H
#define VYSMIL_VYTIMEEVENT_H

#include <VySmil/time/vytimeoffset.h>

#include <QString>

/// A time tied to an event of another element, "button.activateEvent+0.5s" (W3C SMIL 2.0, Timing:
/// Event-value). The offset is required.
///
/// A failed read keeps the fields that it stored before the fault. Without a "." nothing changes.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimeEvent
{
public:
    /// Reads an id, which ends at the first ".", the event name, which ends at the first "+", or without one
    /// at the first "-", and the offset.
    int fromString(const QString &text);
    /// The text of the value.
    [[nodiscard]] QString toString() const;

    QString id = QStringLiteral("");    ///< the element that is meant
    QString event = QStringLiteral(""); ///< the name of the event, trimmed
    VyTimeOffset offset;                ///< added to that instant
};

Q_DECLARE_TYPEINFO(VySmil::VyTimeEvent, Q_RELOCATABLE_TYPE);

#endif
