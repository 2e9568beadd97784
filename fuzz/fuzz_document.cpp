// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Any text may be parsed. What is then written without a finding reads back to the same tree and the same
// text.

#include "fuzzcheck.h"

#include "../tests/support/treetext.h"

#include <VySmil/VySmil>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size < 1)
        return 0;
    // The last byte says how to read; all before it is the text.
    const bool strict = data[size - 1] & 1;
    const auto version = static_cast<VySmil::SMIL_VERSION>((data[size - 1] >> 1) & 1);
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size - 1));

    VySmilElemSmil root;
    VySmilParser::parse(text, &root, strict, nullptr, version);
    const VySmilElemSmil copy(root);
    checkSame("a copy differs", text, treeText(root), treeText(copy));

    QString written;
    if (VySmilParser::assemble(&root, written, true, nullptr, VySmil::SMIL_VER_DEFAULT) != 0)
        return 0;
    VySmilElemSmil readBack;
    VySmil::STATUS_CODE status = VySmil::STATUS_OK;
    const int result = VySmilParser::parse(written, &readBack, true, &status, VySmil::SMIL_VER_DEFAULT);
    checkSame("written text does not read", written, QString::number(result + status), QStringLiteral("0"));
    QString again;
    VySmilParser::assemble(&readBack, again, true, nullptr, VySmil::SMIL_VER_DEFAULT);
    checkSame("another tree", text, treeText(root), treeText(readBack));
    checkSame("another text", text, written, again);
    return 0;
}
