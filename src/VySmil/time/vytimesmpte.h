// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYTIMESMPTE_H
#define VYSMIL_VYTIMESMPTE_H

#include <VySmil/vysmil.h>

#include <QString>

/// A SMPTE time code: the kind, directly followed by hours, minutes, seconds and optional frames,
/// "smpte-30-drop01:02:03:04". The kinds are smpte-24, -25, -30, -50 and -60, and -24, -30 and -60 with
/// "-drop" (compare W3C SMIL 2.0, Media Objects: clipBegin).
///
/// No field is checked against a range. A read that finds no kind changes nothing; one that fails behind it
/// keeps the kind and the fields before the fault, with 0 in the one that is no number. Where a ":" is
/// missing, the field before it stays as it was.
///
/// \see [Time values](times.md)
class VYSMIL_EXPORT VySmil::VyTimeSmpte
{
public:
    /// Reads the kind in any letter case.
    int fromString(const QString &text);
    /// Frames are printed unless they are 0.
    [[nodiscard]] QString toString() const;

    quint32 hours = 0;                              ///< any number
    quint32 minutes = 0;                            ///< any number
    quint32 seconds = 0;                            ///< any number, whole
    quint32 frames = 0;                             ///< 0 also where there are none
    QString smpteType = QStringLiteral("smpte-25"); ///< in lower case
};

Q_DECLARE_TYPEINFO(VySmil::VyTimeSmpte, Q_RELOCATABLE_TYPE);

#endif
