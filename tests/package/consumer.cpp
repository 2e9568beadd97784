// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// A client that has nothing but the installed package: reads a document and writes it again.

#include <VySmil/VySmil>

#include <QDomElement>

#include <cstdio>

int main()
{
    VySmilElemSmil root;
    QString out;
    const QString text = QStringLiteral("<smil>\n<body>\n</body>\n</smil>\n");
    const int read = VySmilParser::parse(text, &root, true);
    const int written = VySmilParser::assemble(&root, out, true);
    const int foreign = root.fromDomElem(QDomElement(), true, nullptr, VySmil::SMIL_VER_DEFAULT);
    std::printf("%d %d %d %d\n", read, written, foreign, out == text);
    return read == 0 && written == 0 && foreign == VySmil::RESULT_UNUSABLE && out == text ? 0 : 1;
}
