// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_READTEXT_H
#define VYSMIL_TOOLS_READTEXT_H

#include <QString>

#include <optional>

/// The greatest size of a SMIL document that is read, in bytes. Those of messages have a few thousand.
constexpr qint64 maxDocumentSize = qint64(8) << 20;

/// The text of the file \a path, or of standard input for "-". Nothing, with \a error set, if it cannot be
/// read or is larger than a document is.
std::optional<QString> readText(const QString &path, QString &error);

#endif
