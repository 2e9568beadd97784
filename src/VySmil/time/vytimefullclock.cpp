// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/values/number_p.h>

int VySmilPrivate::readTime(QStringView text, VySmil::VyTimeFullClock &time)
{
    QStringView rest = text.trimmed();
    if (rest.count(u':') != 2)
        return VySmil::RESULT_UNUSABLE;
    return resultOf(readUnsigned(cutAt(u':', rest), time.hours) &&
                    readUnsigned(cutAt(u':', rest), time.minutes) && readFloat(rest, time.seconds));
}

int VySmil::VyTimeFullClock::fromString(const QString &text)
{
    return VySmilPrivate::readTime(text, *this);
}

QString VySmil::VyTimeFullClock::toString() const
{
    return VySmilPrivate::twoDigits(hours) + u':' + VySmilPrivate::twoDigits(minutes) + u':' +
           VySmilPrivate::secondsText(seconds);
}
