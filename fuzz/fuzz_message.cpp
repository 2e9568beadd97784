// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Any document with any parts may be shown, written, composed and checked, and what holds of a message holds.

#include "fuzzcheck.h"

#include "../tests/support/growth.h"
#include "../tests/support/messageproperties.h"

namespace {
// Above this a text shows what the library takes, and what is asked below would take longer.
constexpr size_t large = 4'096;
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    // Messages as the tests have them.
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QString &each : MessageCase::textsIn(text)) {
        const MessageCase message(each);
        if (size > large) {
            const Grown grown(message);
            for (const GrowthOperation &operation : growthOperations())
                checkHeap(operation.first, qsizetype(size), [&] { operation.second(grown); });
            continue;
        }
        VySmilElemSmil root;
        VySmilParser::parse(message.smil(), &root);
        checkSame("a message", text, brokenInMessage(root, message), QString());
        checkSame("parts", text, brokenInParts(message), QString());
    }
    return 0;
}
