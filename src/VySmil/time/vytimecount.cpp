// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/values/keyword_p.h>
#include <VySmil/values/number_p.h>

#include <cmath>
#include <limits>

int VySmilPrivate::readTime(QStringView text, VySmil::VyTimeCount &time)
{
    QStringView number = text.trimmed();
    if (endsLowered(number, u"min")) {
        time.metric = VySmil::VyTimeCount::METRIC_MIN;
        number.chop(3);
    } else if (endsLowered(number, u"ms")) {
        time.metric = VySmil::VyTimeCount::METRIC_MS;
        number.chop(2);
    } else if (endsLowered(number, u"h")) {
        time.metric = VySmil::VyTimeCount::METRIC_H;
        number.chop(1);
    } else {
        time.metric = VySmil::VyTimeCount::METRIC_S;
        if (endsLowered(number, u"s"))
            number.chop(1);
    }
    return resultOf(readFloat(number, time.value));
}

int VySmil::VyTimeCount::fromString(const QString &text)
{
    return VySmilPrivate::readTime(text, *this);
}

QString VySmil::VyTimeCount::toString() const
{
    const QString number = VySmilPrivate::significantSix(value);
    switch (metric) {
    case METRIC_H:
        return number + u'h';
    case METRIC_MIN:
        return number + QStringView(u"min");
    case METRIC_MS:
        return number + QStringView(u"ms");
    default:
        return number + u's';
    }
}

qint32 VySmil::VyTimeCount::toMilliSeconds() const noexcept
{
    // Every product is rounded to a float, which is why the factors are not multiplied with each other first.
    float milliSeconds = value;
    if (metric == METRIC_H)
        milliSeconds *= 60;
    if (metric == METRIC_H || metric == METRIC_MIN)
        milliSeconds *= 60;
    if (metric != METRIC_MS)
        milliSeconds *= 1000;

    if (std::isnan(milliSeconds))
        return 0;
    using Limits = std::numeric_limits<qint32>;
    constexpr float beyond = 2147483648.0F; // the greatest 32-bit number has no float of its own
    if (milliSeconds >= beyond)
        return Limits::max();
    if (milliSeconds < -beyond)
        return Limits::min();
    return static_cast<qint32>(milliSeconds);
}
