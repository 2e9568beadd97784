// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Values and times: reading against Qt's own conversions of a bare number, printing against QString::number.

#include "comparison.h"

#include <VySmil/VySmil>

#include <QStringList>

namespace {

constexpr int repeats = 2'000;

// Calls work with each text, often enough to be timed.
template <typename Work>
void forEach(const QStringList &texts, Work work)
{
    for (int i = 0; i < repeats; ++i) {
        for (const QString &text : texts)
            work(text);
    }
}

template <typename Value>
void benchRead(benchmark::State &state, const QStringList &texts, const QStringList &baselineTexts,
               double bound)
{
    const auto subject = [&texts] {
        Value value;
        forEach(texts, [&value](const QString &text) { benchmark::DoNotOptimize(value.fromString(text)); });
    };
    // As a client reads it by hand: a percentage is a float, all else is whole.
    const auto baseline = [&baselineTexts] {
        forEach(baselineTexts, [](const QString &text) {
            if (text.contains(u'.'))
                benchmark::DoNotOptimize(text.toFloat());
            else
                benchmark::DoNotOptimize(text.toInt());
        });
    };
    const double scale = static_cast<double>(baselineTexts.size()) / static_cast<double>(texts.size());
    compare(state, subject, baseline,
            baselineTexts.first().contains(u'.') ? "QString::toFloat" : "QString::toInt", bound, scale);
}

template <typename Value, typename Print>
void benchPrint(benchmark::State &state, const char *text, Print print, const char *baselineName)
{
    Value value;
    value.fromString(QString::fromLatin1(text));
    const auto subject = [&value] {
        for (int i = 0; i < repeats; ++i)
            benchmark::DoNotOptimize(value.toString());
    };
    const auto baseline = [&print] {
        for (int i = 0; i < repeats; ++i)
            benchmark::DoNotOptimize(print());
    };
    compare(state, subject, baseline, baselineName, 2.0);
}

template <typename Lambda, typename... Args>
void add(const char *name, Lambda lambda, Args... args)
{
    benchmark::RegisterBenchmark(name, lambda, args...)->UseManualTime();
}

const bool registered = [] {
    add("read VyLength, pixels", benchRead<VySmil::VyLength>, QStringList{"120", "0", "176", "1134"},
        QStringList{"120", "0", "176", "1134"}, 2.0);
    add("read VyLength, percent", benchRead<VySmil::VyLength>, QStringList{"50.0%", "33.3%", "100.0%"},
        QStringList{"50.0", "33.3", "100.0"}, 2.0);
    const QStringList number{"5.5"};
    for (const char *text : {"5s", "5000ms", "00:01.5", "indefinite", "intro.end+2s"}) {
        static QStringList names;
        names << QStringLiteral("read VyTime, \"%1\"").arg(text);
        add(qPrintable(names.last()), benchRead<VySmil::VyTime>, QStringList{text}, number, 6.0);
    }
    add("read VyTime, all of these", benchRead<VySmil::VyTime>,
        QStringList{"5s", "5000ms", "00:01.5", "indefinite", "intro.end+2s"}, number, 6.0);
    const auto whole = [] { return QString::number(120); };
    const auto fixed = [] { return QString::number(33.3, 'f', 6); };
    const auto general = [] { return QString::number(12.5, 'g', 6); };
    add("print VyLength, \"120\"", benchPrint<VySmil::VyLength, decltype(whole)>, "120", whole,
        "QString::number(int)");
    add("print VyLength, \"33.299999%\"", benchPrint<VySmil::VyLength, decltype(fixed)>, "33.3%", fixed,
        "QString::number(double, 'f', 6)");
    add("print VyTime, \"12.5s\"", benchPrint<VySmil::VyTime, decltype(general)>, "12.5s", general,
        "QString::number(double, 'g', 6)");
    return true;
}();

} // namespace
