// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// What setters print is right SMIL; some phones read less than that. Text stored by setAttribute() stands as
// it is.

#include <VySmil/VySmil>

#include <cstdio>

int main()
{
    VySmilElemSmil root;
    auto *slide = new VySmilElemPar;
    root.getSubElements()->append(slide);
    auto *image = new VySmilElemMediaObjImg;
    slide->getSubElements()->append(image);

    VySmil::VyTime time;
    time.fromString("02:05.5");
    slide->getTimingAttrsProxy()->setDur(time);
    std::printf("setDur stored       %s\n", qPrintable(slide->getAttribute("dur")));
    time.fromString("1200000ms");
    slide->getTimingAttrsProxy()->setDur(time);
    std::printf("setDur stored       %s\n", qPrintable(slide->getAttribute("dur")));

    // The same times as every phone reads them.
    slide->setAttribute("dur", QString("%1ms").arg(125'500));
    std::printf("setAttribute stored %s\n", qPrintable(slide->getAttribute("dur")));

    image->setAttribute("alt", "5 < 6 & \"7\"");
    image->setAttribute("nohref", "nohref");
    QString out;
    VySmil::STATUS_CODE status = VySmil::STATUS_OK;
    const int result = VySmilParser::assemble(&root, out, false, &status, VySmil::SMIL_VER_DEFAULT);
    std::printf("\nresult %d, status %d\n%s", result, status, qPrintable(out));

    // A bare word is no XML: nobody reads this text, this library included.
    std::printf("\nread again: %d\n",
                VySmilParser::parse(out, &root, false, nullptr, VySmil::SMIL_VER_DEFAULT));
    return 0;
}
