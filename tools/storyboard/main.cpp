// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// storyboard: draws what a SMIL document shows as an SVG picture.

#include "../commandline.h"
#include "../complain.h"
#include "drawing.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSaveFile>

#include <cstdio>

namespace {

// Writes to the file, or to standard output for "-".
bool write(const QByteArray &svg, const QString &path, QString &error)
{
    if (path == u'-') {
        const auto size = static_cast<size_t>(svg.size());
        error = QStringLiteral("standard output cannot be written");
        return std::fwrite(svg.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
    }
    // Only a file can be exchanged for another: a pipe or a device is written to.
    const QFileInfo place(path);
    if (place.exists() && !place.isFile()) {
        QFile device(path);
        const bool isWritten =
            device.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && device.write(svg) == svg.size();
        error = device.errorString();
        return isWritten;
    }
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(svg) == svg.size() && file.commit();
    error = file.errorString();
    return isWritten;
}

} // namespace

int main(int argc, char **argv)
{
    constexpr int failure = 2;
    usePlainLocale();
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("storyboard"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VYSMIL_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Draws the slides of a SMIL document, each with its time line, as an SVG picture."));
    addCommonOptions(parser);
    parser.addOption(
        {{QStringLiteral("o"), QStringLiteral("output")},
         QStringLiteral("Write the picture to a file; \"-\", and the default, is standard output."),
         QStringLiteral("file"),
         QStringLiteral("-")});
    parser.addPositionalArgument(
        QStringLiteral("file"),
        QStringLiteral("What to read: a document, or a folder that holds one and its "
                       "parts; standard input without any."),
        QStringLiteral("[file]"));
    processArguments(parser, failure);

    const QStringList paths = parser.positionalArguments();
    if (paths.size() > 1) {
        complain(paths.at(1), QStringLiteral("a second file: one file makes one picture"));
        return failure;
    }
    bool isComplete = false;
    const Reading reading = readingOf(parser, isComplete);
    const QString path = paths.value(0, QStringLiteral("-"));
    Message message;
    QString error;
    if (!readMessage(path, reading, message, error)) {
        complain(message.path, error);
        return failure;
    }
    // That a photograph is broken is seen in the picture.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio.*=false"));
    VySmilSlideShow show;
    show.fromTree(message.root, message.parts.list);
    const QByteArray svg = drawingOf(show, message.parts.list, contentsOf(show, message.parts.files));
    const QString output = parser.value(QStringLiteral("output"));
    if (!write(svg, output, error)) {
        complain(output, error);
        return failure;
    }
    return isComplete ? 0 : failure;
}
