// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Reads a message as phones send them: all of it, and what is odd about it.

#include <VySmil/VySmil>

#include <cstdio>

int main()
{
    const QString received =
        QStringLiteral("<smil xmlns=\"http://www.w3.org/2001/SMIL20/Language\">"
                       "<head><layout><root-layout width=\"160\" height=\"120\"/></layout></head>"
                       "<body><par dur=\"5s\"><img src=\"cid:beach.jpg\"/>"
                       "<text src=\"cid:hello.txt\"><param name=\"textsize\" value=\"small\"/></text>"
                       "</par></body></smil>");
    constexpr auto version = VySmil::SMIL_VER_DEFAULT;
    VySmil::STATUS_CODE status = VySmil::STATUS_OK;

    // A strict reader stops at the first thing that the vocabulary does not know, and loses the message.
    VySmilElemSmil strictRoot;
    int result = VySmilParser::parse(received, &strictRoot, true, &status, version);
    std::printf("strict: result %d, status %d, %u children\n", result, status,
                strictRoot.getSubElementsCount());

    // A receiver reads without strictness. The status then tells the last finding, and nothing is lost.
    VySmilElemSmil root;
    result = VySmilParser::parse(received, &root, false, &status, version);
    std::printf("not strict: result %d, status %d, %u children\n", result, status,
                root.getSubElementsCount());
    if (result != VySmil::RESULT_OK)
        return 1;

    const VySmilElemBase *body = root.getBody();
    for (unsigned int i = 0; body && i < body->getSubElementCounts("par"); ++i) {
        const auto *slide = dynamic_cast<const VySmilElemPar *>(body->getSubElement(i, "par"));
        const VySmil::VyTime duration = slide->getTimingAttrsProxy()->getDur();
        std::printf("slide %u lasts %s\n", i + 1, qPrintable(duration.toString()));
        for (const VySmilElemBase *child : *slide->getSubElements()) {
            if (const auto *media = dynamic_cast<const VySmilElemMediaObj *>(child))
                std::printf("  %s %s\n", qPrintable(media->getElemType()),
                            qPrintable(media->getMediaAttrsProxy()->getSrc()));
        }
    }
    return 0;
}
