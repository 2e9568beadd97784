// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// storyboard: draws what a SMIL document shows as an SVG picture.

#include "../readtext.h"
#include "drawing.h"

#include <VySmil/VySmil>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSaveFile>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(VYSMIL_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Draws the slides of a SMIL document, each with its time line, as an SVG picture."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")},
                                    QStringLiteral("Write the picture to a file instead of standard output."),
                                    QStringLiteral("file"));
    parser.addOption(output);
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("What to read, or standard input."),
                                 QStringLiteral("[file]"));
    parser.process(app);

    const auto fail = [](const QString &path, const QString &error) {
        std::fprintf(stderr, "storyboard: %s: %s\n", qPrintable(path), qPrintable(error));
        return 2;
    };
    const QString path = parser.positionalArguments().value(0, QStringLiteral("-"));
    QString error;
    const auto text = readText(path, error);
    if (!text)
        return fail(path, error);
    VySmilElemSmil root;
    if (VySmilParser::parse(*text, &root, false, nullptr, VySmil::SMIL_VER_DEFAULT) != VySmil::RESULT_OK)
        return fail(path, QStringLiteral("no SMIL document"));
    VySmilSlideShow show;
    show.fromTree(root);
    const QByteArray svg = drawingOf(show).toUtf8();

    if (!parser.isSet(output))
        return std::fwrite(svg.constData(), 1, static_cast<size_t>(svg.size()), stdout) ==
                       static_cast<size_t>(svg.size())
                   ? 0
                   : 2;
    QSaveFile file(parser.value(output));
    if (!file.open(QIODevice::WriteOnly) || file.write(svg) != svg.size() || !file.commit())
        return fail(file.fileName(), file.errorString());
    return 0;
}
