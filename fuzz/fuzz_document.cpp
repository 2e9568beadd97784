// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Any text may be parsed, with the result and the tree of a DOM of that very text, whichever reader takes it.
// What is then written without a finding reads back to the same tree and the same text.

#include "fuzzcheck.h"

#include "../tests/support/treetext.h"

#include <VySmil/VySmil>
#include <VySmil/parser/plainreader_p.h>

#include <QDomDocument>

namespace {

// How many texts each reader took, printed at the end of the program.
struct Ways
{
    long plain = 0;
    long byQt = 0;
    ~Ways() { std::fprintf(stderr, "texts read as plain: %ld, by Qt: %ld\n", plain, byQt); }
};
Ways ways;

// The text that is read: what is before the root is left out.
QString workingText(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.mid(qMax(qsizetype(0), trimmed.indexOf(QLatin1String("<smil"))));
}

void countWay(const QString &text, int result)
{
    if (result == VySmil::RESULT_MALFORMED)
        return;
    const VySmilElemSmil root;
    VySmilPrivate::TreeBuilder builder(root, false, VySmil::SMIL_VER_DEFAULT);
    const auto outcome = VySmilPrivate::PlainReader(text, builder).read();
    ++(outcome == VySmilPrivate::PlainReader::Outcome::Done ? ways.plain : ways.byQt);
}

bool isWithinBounds(const QDomElement &top)
{
    int depth = 1;
    QDomElement elem = top;
    for (;;) {
        if (depth > VySmilParser::MAX_DEPTH || elem.attributes().length() > VySmilParser::MAX_ATTRIBUTES)
            return false;
        if (const QDomElement child = elem.firstChildElement(); !child.isNull()) {
            elem = child;
            ++depth;
            continue;
        }
        while (elem != top && elem.nextSiblingElement().isNull()) {
            elem = elem.parentNode().toElement();
            --depth;
        }
        if (elem == top)
            return true;
        elem = elem.nextSiblingElement();
    }
}

// What parse() gives for a text without an internal DTD subset, by way of a DOM.
int parseByDom(const QString &text, VySmilElemSmil &root, bool strict, VySmil::STATUS_CODE &status,
               VySmil::SMIL_VERSION version)
{
    if (text.isEmpty())
        return VySmil::RESULT_UNUSABLE;
    QDomDocument dom;
    if (!dom.setContent(text))
        return VySmil::RESULT_MALFORMED;
    if (!isWithinBounds(dom.documentElement()))
        return VySmil::RESULT_MALFORMED;
    return root.fromDomElem(dom.documentElement(), strict, &status, version);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size < 1)
        return 0;
    // The last byte says how to read; all before it is the text.
    const bool strict = data[size - 1] & 1;
    const auto version = static_cast<VySmil::SMIL_VERSION>((data[size - 1] >> 1) & 1);
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size - 1));

    VySmilElemSmil root;
    VySmil::STATUS_CODE status = VySmil::STATUS_OK;
    int result = 0;
    checkHeap("parse", text.size(),
              [&] { result = VySmilParser::parse(text, &root, strict, &status, version); });
    const QString working = workingText(text);
    countWay(working, result);
    if (!working.contains(QLatin1String("<!DOCTYPE")) || !working.contains(u'[')) {
        VySmilElemSmil expected;
        VySmil::STATUS_CODE expectedStatus = VySmil::STATUS_OK;
        const int expectedResult = parseByDom(working, expected, strict, expectedStatus, version);
        checkSame("another result", text, QString::number(result), QString::number(expectedResult));
        checkSame("another status", text, QString::number(status), QString::number(expectedStatus));
        checkSame("another tree than the DOM's", text, treeText(root), treeText(expected));
    }
    const VySmilElemSmil copy(root);
    checkSame("a copy differs", text, treeText(root), treeText(copy));

    QString written;
    checkHeap("assemble", text.size(), [&] { result = VySmilParser::assemble(&root, written, true); });
    if (result != 0)
        return 0;
    VySmilElemSmil readBack;
    result = VySmilParser::parse(written, &readBack, true, &status);
    checkSame("written text does not read", written, QString::number(result + status), QStringLiteral("0"));
    QString again;
    VySmilParser::assemble(&readBack, again, true);
    checkSame("another tree", text, treeText(root), treeText(readBack));
    checkSame("another text", text, written, again);
    return 0;
}
