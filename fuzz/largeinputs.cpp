// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Writes inputs as large as the fuzz targets get them, each full of one thing: into a folder for each target,
// below the folder named.

#include "../tests/support/growth.h"
#include "../tests/support/storedanswer.h"

#include <QDir>

#include <cstdio>

int main(int argc, char **argv)
{
    const QDir folder(QString::fromLocal8Bit(argc == 2 ? argv[1] : ""));
    bool isWritten = argc == 2;
    const auto write = [&](const char *target, const QString &name, const QString &text) {
        isWritten = isWritten && folder.mkpath(QString::fromLatin1(target)) &&
                    storeText(folder.filePath(QString::fromLatin1(target) + u'/' + name), text);
    };
    constexpr qsizetype size = 65'000;
    int number = 0;
    for (const GrowthShape &shape : growthShapes()) {
        const qsizetype ofPiece = GrowthShape::repeated(shape.piece + shape.part, 1).toUtf8().size();
        const qsizetype pieces = (size - shape.text(0).size()) / ofPiece;
        const QString text = shape.text(pieces);
        const QString name = QString::number(++number);
        write("document", name, text + u'a'); // the last byte says how to read
        write("message", name, QStringLiteral("=== ") + shape.messageText(pieces));
        write("text", name, text);
        write("values", name, shape.piece.repeated(pieces));
    }
    if (!isWritten)
        std::fprintf(stderr, "usage: largeinputs FOLDER, which can be written to\n");
    return isWritten ? 0 : 2;
}
