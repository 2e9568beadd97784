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
        int result[2];
        VySmil::STATUS_CODE status[2];
        for (const bool strict : {true, false}) {
            VySmilElemSmil root;
            result[strict] = VySmilParser::parse(text, &root, strict, &status[strict], version);
        }
        std::printf("%2d, %-4d %2d, %-4d  %s\n", result[true], status[true], result[false], status[false],
                    text);
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
