// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Any document with any parts may be shown, written, composed and checked, and what holds of a message holds.

#include "fuzzcheck.h"

#include "../tests/support/messageproperties.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    // A message as the tests have them.
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const MessageCase message(text);
    VySmilElemSmil root;
    VySmilParser::parse(message.document, &root, false, nullptr, VySmil::SMIL_VER_DEFAULT);
    checkSame("a message", text, brokenInMessage(root, message.parts), QString());
    checkSame("parts", text, brokenInParts(message.parts), QString());
    return 0;
}
