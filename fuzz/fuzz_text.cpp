// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Any bytes may be decoded, and any text explained and mended: why a text does not read agrees with reading
// it, and what was mended reads.

#include "fuzzcheck.h"

#include "../tests/support/textproperties.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    // A first line may be a label.
    const qsizetype lineEnd = bytes.indexOf('\n');
    checkSame("decoded", QString::fromLatin1(bytes),
              brokenInText(VySmilText::decode(bytes.mid(lineEnd + 1), bytes.left(lineEnd))), QString());
    const QString text = QString::fromUtf8(bytes);
    checkSame("text", text, brokenInText(text), QString());
    return 0;
}
