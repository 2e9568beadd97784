// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILPART_H
#define VYSMIL_VYSMILPART_H

#include <VySmil/vysmil_export.h>

#include <QList>
#include <QObject>
#include <QString>

/// One part of a multimedia message beside its SMIL: what a medium of the SMIL refers to (RFC 2557, OMA MMS
/// Encapsulation). The library looks at the headers alone, and leaves the contents to the client.
///
/// \see [Showing a received message](showing.md), [Composing a message](composing.md)
class VYSMIL_EXPORT VySmilPart
{
    Q_GADGET
    Q_PROPERTY(QString contentId MEMBER contentId)
    Q_PROPERTY(QString contentLocation MEMBER contentLocation)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString contentType MEMBER contentType)
    Q_PROPERTY(qint32 durationMs MEMBER durationMs)

public:
    QString contentId;       ///< Content-ID, with or without "<" and ">"
    QString contentLocation; ///< Content-Location
    QString name;            ///< the name parameter of Content-Type, else the file name
    QString contentType;     ///< the MIME type; parameters behind ";" do not matter
    qint32 durationMs = -1;  ///< the length of sound or video where it is known

    /// Whether this is the SMIL of the message: application/smil, application/smil+xml or application/x-smil,
    /// in any letter case.
    [[nodiscard]] Q_INVOKABLE bool isSmil() const noexcept;

    /// Gives each of \a parts something that media can refer to it by.
    ///
    /// A part of which neither content location nor content id names it alone, in printable ASCII without
    /// blanks, gets both where the field is empty: made from its name, else its location, else its number,
    /// and unlike any location, name and id of the others. What a part brought is never changed, and the SMIL
    /// stays as it is. What a composer calls first; the client sends the parts with these headers.
    static void nameAll(QList<VySmilPart> &parts);

    /// Whether all fields are the same.
    bool operator==(const VySmilPart &other) const noexcept;
    /// Whether a field differs.
    bool operator!=(const VySmilPart &other) const noexcept { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(VySmilPart, Q_RELOCATABLE_TYPE);

#endif
