// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Any bytes may be decoded, and any text explained and mended: why a text does not read agrees with reading
// it, and what was mended reads.

#include "fuzzcheck.h"

#include "../tests/support/textproperties.h"

namespace {

// Above this a text shows what the library takes, and what is asked of smaller ones would take longer.
constexpr qsizetype large = 4'096;

QString brokenIn(const QString &text)
{
    if (text.size() <= large)
        return brokenInText(text);
    QString mended;
    checkHeap("mend", text.size(), [&] { mended = VySmilText::mend(text); });
    bool reads = false;
    checkHeap("explain", text.size(),
              [&] { reads = VySmilText::explain(text).reason == VySmilTextFault::FAULT_NONE; });
    return reads && mended.isEmpty() ? QStringLiteral("mended away") : QString();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    // A first line may be a label.
    const qsizetype lineEnd = bytes.indexOf('\n');
    checkSame("decoded", QString::fromLatin1(bytes),
              brokenIn(VySmilText::decode(bytes.mid(lineEnd + 1), bytes.left(lineEnd))), QString());
    const QString text = QString::fromUtf8(bytes);
    checkSame("text", text, brokenIn(text), QString());
    return 0;
}
