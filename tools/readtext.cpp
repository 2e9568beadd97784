// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "readtext.h"

#include <VySmil/parser/vysmiltext.h>

#include <QFile>

#include <algorithm>
#include <cstdio>

std::optional<QString> readText(const QString &path, QString &error)
{
    QFile file(path);
    const bool opened = path == u'-' ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    QByteArray bytes;
    // Whatever size it claims, a device may go on for ever.
    while (opened && file.size() <= maxDocumentSize && bytes.size() <= maxDocumentSize) {
        const QByteArray chunk = file.read(65'536);
        if (chunk.isEmpty())
            break;
        bytes += chunk;
    }
    if (!opened || file.error() != QFileDevice::NoError) {
        error = file.errorString();
        return std::nullopt;
    }
    if (std::max<qint64>(file.size(), bytes.size()) > maxDocumentSize) {
        error = QStringLiteral("larger than %1 MiB: no SMIL document").arg(maxDocumentSize >> 20);
        return std::nullopt;
    }
    return VySmilText::decode(bytes);
}
