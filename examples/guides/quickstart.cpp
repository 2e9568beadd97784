// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/VySmil>

#include <cstdio>

int main()
{
    const QString received =
        QStringLiteral("<smil><body><par dur=\"5s\"><img src=\"a.jpg\"/></par></body></smil>");

    VySmilElemSmil root;
    VySmil::STATUS_CODE status;
    if (VySmilParser::parse(received, &root, false, &status, VySmil::SMIL_VER_DEFAULT) != VySmil::RESULT_OK)
        return 1;
    VySmilElemBase *body = root.getBody();
    VySmilElemBase *slide = body ? body->getSubElement(0, "par") : nullptr;
    if (!slide)
        return 1;

    slide->setAttribute("dur", "10s");
    VySmilElemBase *text = VySmilElemBase::newElem("text");
    text->setAttribute("src", "you & me.txt");
    slide->getSubElements()->append(text); // owns it from now on

    QString written;
    VySmilParser::assemble(&root, written, true, &status, VySmil::SMIL_VER_DEFAULT);
    std::fputs(qPrintable(written), stdout);
    return 0;
}
