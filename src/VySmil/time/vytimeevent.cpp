// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/time/vytimeevent.h>

int VySmil::VyTimeEvent::fromString(const QString &text)
{
    const QString own = text.trimmed(); // the text may be the field that is written first
    QStringView rest = own;
    if (!VySmilPrivate::takeId(rest, id))
        return RESULT_UNUSABLE;
    qsizetype sign = rest.indexOf(u'+');
    if (sign < 0)
        sign = rest.indexOf(u'-');
    if (sign < 0)
        return RESULT_UNUSABLE;
    event = rest.first(sign).trimmed().toString();
    return VySmilPrivate::readTime(rest.sliced(sign), offset);
}

QString VySmil::VyTimeEvent::toString() const
{
    return id + u'.' + event + offset.toString();
}
