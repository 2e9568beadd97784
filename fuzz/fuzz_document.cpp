// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Any text may be parsed, with the result and the tree of a DOM of that very text. What is then written
// without a finding reads back to the same tree and the same text.

#include "fuzzcheck.h"

#include "../tests/support/treetext.h"

#include <VySmil/VySmil>

#include <QDomDocument>

namespace {

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

// What parse() does with a text that has no DTD, without its way of preparing the text for the DOM.
int parsePlainly(const QString &text, VySmilElemSmil &root, bool strict, VySmil::STATUS_CODE &status,
                 VySmil::SMIL_VERSION version)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return VySmil::RESULT_UNUSABLE;
    QDomDocument dom;
    if (!dom.setContent(trimmed.mid(trimmed.indexOf(QLatin1String("<smil")))))
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
    int result = VySmilParser::parse(text, &root, strict, &status, version);
    if (!text.contains(QLatin1String("<!DOCTYPE"))) {
        VySmilElemSmil plain;
        VySmil::STATUS_CODE plainStatus = VySmil::STATUS_OK;
        const int plainResult = parsePlainly(text, plain, strict, plainStatus, version);
        checkSame("another result", text, QString::number(result), QString::number(plainResult));
        checkSame("another status", text, QString::number(status), QString::number(plainStatus));
        checkSame("another tree than the DOM's", text, treeText(root), treeText(plain));
    }
    const VySmilElemSmil copy(root);
    checkSame("a copy differs", text, treeText(root), treeText(copy));

    QString written;
    if (VySmilParser::assemble(&root, written, true, nullptr, VySmil::SMIL_VER_DEFAULT) != 0)
        return 0;
    VySmilElemSmil readBack;
    result = VySmilParser::parse(written, &readBack, true, &status, VySmil::SMIL_VER_DEFAULT);
    checkSame("written text does not read", written, QString::number(result + status), QStringLiteral("0"));
    QString again;
    VySmilParser::assemble(&readBack, again, true, nullptr, VySmil::SMIL_VER_DEFAULT);
    checkSame("another tree", text, treeText(root), treeText(readBack));
    checkSame("another text", text, written, again);
    return 0;
}
