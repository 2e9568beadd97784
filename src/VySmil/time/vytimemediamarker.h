// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMEMEDIAMARKER_H
#define VYSMIL_VYTIMEMEDIAMARKER_H

#include <VySmil/vysmil.h>

#include <QString>

/// A time tied to a marker in the media of another element, "movie.marker(chapter2)" (W3C SMIL 2.0, Timing:
/// Media-marker-value).
///
/// A failed read keeps the fields that it stored before the fault. Without a "." nothing changes.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimeMediaMarker
{
public:
    /// Reads an id, which ends at the first ".", and the keyword in any letter case; what follows the ")" is
    /// ignored.
    int fromString(const QString &text);
    /// The text of the value.
    [[nodiscard]] QString toString() const;

    QString id = QStringLiteral("");         ///< the element whose media hold the marker
    QString markerName = QStringLiteral(""); ///< trimmed
};

Q_DECLARE_TYPEINFO(VySmil::VyTimeMediaMarker, Q_RELOCATABLE_TYPE);

#endif
