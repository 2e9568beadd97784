// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_MESSAGE_H
#define VYSMIL_TOOLS_MESSAGE_H

#include "parts.h"

#include <VySmil/VySmil>

/// How messages are read.
struct Reading
{
    bool strict = false;
    bool mend = false;
    Parts parts; ///< that go with each of them
};

/// A message that was read.
struct Message
{
    QString path; ///< of the document: as it was given, or in the folder that was given
    Parts parts;  ///< those of its own folder, then those that go with each message
    VySmilElemSmil root;
    QString mended; ///< what was wrong with the text until it was mended
    int result = VySmil::RESULT_OK;
    VySmil::STATUS_CODE status = VySmil::STATUS_OK;
};

/// Reads the SMIL document \a path, standard input for "-", or in a folder the one document that lies there,
/// with the other files as its parts. Complains about what it mends. False, with \a error set to one line, if
/// that cannot be done.
bool readMessage(const QString &path, const Reading &reading, Message &message, QString &error);

#endif
