// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Shows the results and the status of reading and writing.

#include <VySmil/VySmil>

#include <cstdio>

int main()
{
    constexpr auto version = VySmil::SMIL_VER_DEFAULT;
    std::printf("%-8s %-8s  %s\n", "strict", "loose", "text");
    for (const char *text : {"<smil><body/></smil>", "<smil><seq/></smil>", "<smil><par color='red'/></smil>",
                             "<smil><par color='red'/><seq/></smil>", "<smil><PAR/></smil>", "<html/>", " ",
                             "<smil><body></smil>"}) {
        const auto answer = [text](bool strict) {
            VySmilElemSmil root;
            VySmil::STATUS_CODE status = VySmil::STATUS_OK;
            const int result = VySmilParser::parse(text, &root, strict, &status, version);
            return QString::asprintf("%2d, %d", result, status);
        };
        std::printf("%-8s %-8s  %s\n", qPrintable(answer(true)), qPrintable(answer(false)), text);
    }

    // Writing checks the same. It does not reset the status, so the caller does.
    VySmilElemSmil root;
    root.getSubElements()->append(VySmilElemBase::newElem("seq"));
    QString out;
    VySmil::STATUS_CODE status = VySmil::STATUS_OK;
    std::printf("\nwriting a seq: %d", VySmilParser::assemble(&root, out, true, &status, version));
    std::printf(", status %d, unfinished text: %s", status, qPrintable(out));
    return 0;
}
