// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// storyboard: draws a SMIL document as an SVG picture on standard output, a slide beside the other.

#include "../readtext.h"
#include "drawing.h"

#include <VySmil/VySmil>

#include <cstdio>

int main(int argc, char **argv)
{
    const QString path = QString::fromLocal8Bit(argc > 1 ? argv[1] : "-");
    QString error = QStringLiteral("no SMIL document");
    const auto text = readText(path, error);
    VySmilElemSmil root;
    if (!text ||
        VySmilParser::parse(*text, &root, false, nullptr, VySmil::SMIL_VER_DEFAULT) != VySmil::RESULT_OK) {
        std::fprintf(stderr, "storyboard: %s: %s\n", qPrintable(path), qPrintable(error));
        return 1;
    }
    VySmilSlideShow show;
    show.fromTree(root);
    const QByteArray svg = drawingOf(show).toUtf8();
    std::fwrite(svg.constData(), 1, static_cast<size_t>(svg.size()), stdout);
    return 0;
}
