// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILPART_H
#define VYSMIL_VYSMILPART_H

#include <VySmil/vysmil_export.h>

#include <QString>

/// One part of a multimedia message beside its SMIL: what a medium of the SMIL refers to (RFC 2557, OMA MMS
/// Encapsulation). The library looks at the headers alone, and leaves the contents to the client.
///
/// \see [Showing a received message](showing.md), [Composing a message](composing.md)
class VYSMIL_EXPORT VySmilPart
{
public:
    QString contentId;       ///< Content-ID, with or without "<" and ">"
    QString contentLocation; ///< Content-Location
    QString name;            ///< the name parameter of Content-Type, else the file name
    QString contentType;     ///< the MIME type; parameters behind ";" do not matter
    qint32 durationMs = -1;  ///< the length of sound or video where it is known
};

#endif
