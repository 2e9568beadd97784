// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_time_p.h>
#include <VySmil/time/vytime.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace {

double milliSecondsOf(const VySmil::VyTimeClock &clock)
{
    if (clock.clockType == VySmil::VyTimeClock::CLOCK_FULL) {
        const double minutes = clock.fullClock.hours * 60.0 + clock.fullClock.minutes;
        return minutes * 60'000 + static_cast<double>(clock.fullClock.seconds) * 1'000;
    }
    if (clock.clockType == VySmil::VyTimeClock::CLOCK_PARTIAL)
        return clock.partialClock.minutes * 60'000.0 +
               static_cast<double>(clock.partialClock.seconds) * 1'000;
    static constexpr double factors[] = {3'600'000, 60'000, 1'000, 1};
    return static_cast<double>(clock.timeCount.value) * factors[clock.timeCount.metric];
}

// The form of nearly all times in messages: "5000ms", "5s", "4.5s", "4.5", and "5", which is text to a
// VyTime. Beyond it, the single precision of a VyTime has no room for every millisecond of a long time.
std::optional<double> wholeMilliSeconds(QStringView text)
{
    const bool inMilliSeconds = text.endsWith(u"ms");
    const qsizetype unitSize = inMilliSeconds ? 2 : text.endsWith(u's') ? 1 : 0;
    const QStringView digits = text.chopped(unitSize);
    const qsizetype point = inMilliSeconds ? -1 : digits.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : digits.size() - point - 1;
    if (digits.isEmpty() || point == 0 || (point > 0 && (decimals == 0 || decimals > 3)))
        return std::nullopt;
    // Where a number goes on and on, a VyTime knows whether it reads.
    const auto *const significant =
        std::find_if(digits.begin(), digits.end(), [](QChar c) { return c != u'0'; });
    if ((unitSize > 0 || point > 0) && digits.end() - significant > 18)
        return std::nullopt;
    double number = 0;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        const QChar c = digits[i];
        if (i == point)
            continue;
        if (c < u'0' || c > u'9')
            return std::nullopt;
        number = number * 10 + (c.unicode() - u'0');
    }
    static constexpr double factors[] = {1'000, 100, 10, 1};
    return inMilliSeconds ? number : number * factors[decimals];
}

} // namespace

qint32 VySmilPrivate::saturatedMs(double ms) noexcept
{
    return static_cast<qint32>(std::lround(std::clamp(ms, 0.0, double(std::numeric_limits<qint32>::max()))));
}

VySmilPrivate::KnownTime VySmilPrivate::knownTime(const QString &text)
{
    KnownTime known;
    const QString trimmed = text.trimmed();
    known.isThere = !trimmed.isEmpty();
    if (!known.isThere)
        return known;
    if (const auto ms = wholeMilliSeconds(trimmed)) {
        known.isReadable = known.isKnown = true;
        known.ms = saturatedMs(*ms);
        return known;
    }
    VySmil::VyTime time;
    known.isReadable = time.fromString(trimmed) == VySmil::RESULT_OK;
    known.isIndefinite = time.timeType == VySmil::VyTime::TIME_INDEFINITE;
    if (known.isReadable && time.timeType == VySmil::VyTime::TIME_CLOCK) {
        known.isKnown = true;
        known.ms = saturatedMs(milliSecondsOf(time.clockTime));
    } else if (known.isReadable && time.timeType == VySmil::VyTime::TIME_OFFSET) {
        known.isKnown = true;
        known.ms = saturatedMs((time.offsetTime.positive ? 1 : -1) * milliSecondsOf(time.offsetTime.clock));
    }
    return known;
}
