// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// From bytes to a text that reads: what comes before parse(), against building a DOM of the same message.

#include "comparison.h"
#include "messages.h"

#include <VySmil/VySmil>

#include <QDomDocument>

#include <string>
#include <utility>

namespace {

// A text that reads, and one that lacks an end at its end, so that all of it is looked at.
struct Message
{
    QString text = message(3'000);
    QString damaged = QString(text).replace(QLatin1String("</body>"), QString());
    QByteArray utf8 = text.toUtf8();
    QByteArray utf16 = QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
};

void decodeUtf8(const Message &message)
{
    benchmark::DoNotOptimize(VySmilText::decode(message.utf8));
}

void decodeUtf16(const Message &message)
{
    benchmark::DoNotOptimize(VySmilText::decode(message.utf16));
}

void explain(const Message &message)
{
    benchmark::DoNotOptimize(VySmilText::explain(message.damaged));
}

void mendWhole(const Message &message)
{
    benchmark::DoNotOptimize(VySmilText::mend(message.text));
}

void mendDamaged(const Message &message)
{
    benchmark::DoNotOptimize(VySmilText::mend(message.damaged));
}

using Work = void (*)(const Message &message);

void benchText(benchmark::State &state, Work work, double bound)
{
    const Message message;
    const auto buildDom = [&message] {
        QDomDocument dom;
        benchmark::DoNotOptimize(dom.setContent(message.text));
    };
    compare(
        state, [&] { work(message); }, buildDom, "QDomDocument::setContent", bound);
}

const bool registered = [] {
    const auto add = [](const char *what, Work work, double bound) {
        const std::string name = std::string(what) + ", 3000 pars";
        benchmark::RegisterBenchmark(name.c_str(), benchText, work, bound)->UseManualTime();
    };
    add("decode UTF-8", decodeUtf8, 0.3);
    add("decode UTF-16", decodeUtf16, 0.3);
    add("explain, damaged", explain, 0.7);
    add("mend what reads", mendWhole, 0.5);
    add("mend, damaged", mendDamaged, 0.5);
    return true;
}();

} // namespace
