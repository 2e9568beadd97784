// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/time/vytimesycbase.h>
#include <VySmil/values/keyword_p.h>

int VySmil::VyTimeSycBase::fromString(const QString &text)
{
    const QString own = text.trimmed(); // the text may be the field that is written first
    QStringView rest = own;
    if (!VySmilPrivate::takeId(rest, id))
        return RESULT_UNUSABLE;
    if (VySmilPrivate::startsLowered(rest, u"begin")) {
        isBegin = true;
        return VySmilPrivate::readTime(rest.sliced(5), offset);
    }
    if (VySmilPrivate::startsLowered(rest, u"end")) {
        isBegin = false;
        return VySmilPrivate::readTime(rest.sliced(3), offset);
    }
    return RESULT_UNUSABLE;
}

QString VySmil::VyTimeSycBase::toString() const
{
    return id + (isBegin ? QStringView(u".begin") : QStringView(u".end")) + offset.toString();
}
