// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/values/number_p.h>

int VySmilPrivate::readTime(QStringView text, VySmil::VyTimePartialClock &time)
{
    QStringView rest = text.trimmed();
    if (rest.count(u':') != 1)
        return VySmil::RESULT_UNUSABLE;
    return resultOf(readUnsigned(cutAt(u':', rest), time.minutes) && readFloat(rest, time.seconds));
}

int VySmil::VyTimePartialClock::fromString(const QString &text)
{
    return VySmilPrivate::readTime(text, *this);
}

QString VySmil::VyTimePartialClock::toString() const
{
    return VySmilPrivate::twoDigits(minutes) + u':' + VySmilPrivate::secondsText(seconds);
}
