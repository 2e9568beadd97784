// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/knowntime_p.h>
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

// The form of nearly all times in messages: "5000ms", "5s", and "5", which is text to a VyTime. Beyond it,
// the single precision of a VyTime has no room for every millisecond of a long time.
std::optional<double> wholeUnits(QStringView text)
{
    const bool inMilliSeconds = text.endsWith(u"ms");
    const qsizetype unitSize = inMilliSeconds ? 2 : text.endsWith(u's') ? 1 : 0;
    const QStringView digits = text.chopped(unitSize);
    if (digits.isEmpty() || (unitSize > 0 && digits.size() > 18))
        return std::nullopt;
    double number = 0;
    for (const QChar c : digits) {
        if (c < u'0' || c > u'9')
            return std::nullopt;
        number = number * 10 + (c.unicode() - u'0');
    }
    return inMilliSeconds ? number : number * 1'000;
}

} // namespace

qint32 VySmilPrivate::saturatedMs(double ms)
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
    if (const auto ms = wholeUnits(trimmed)) {
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
