// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>

int VySmilPrivate::readTime(QStringView text, VySmil::VyTimeClock &time)
{
    switch (text.count(u':')) {
    case 2:
        time.clockType = VySmil::VyTimeClock::CLOCK_FULL;
        return readTime(text, time.fullClock);
    case 1:
        time.clockType = VySmil::VyTimeClock::CLOCK_PARTIAL;
        return readTime(text, time.partialClock);
    default:
        time.clockType = VySmil::VyTimeClock::CLOCK_TIMECOUNT;
        return readTime(text, time.timeCount);
    }
}

int VySmil::VyTimeClock::fromString(const QString &text)
{
    return VySmilPrivate::readTime(text, *this);
}

QString VySmil::VyTimeClock::toString() const
{
    switch (clockType) {
    case CLOCK_TIMECOUNT:
        return timeCount.toString();
    case CLOCK_PARTIAL:
        return partialClock.toString();
    default:
        return fullClock.toString();
    }
}
