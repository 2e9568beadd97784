// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/time/vytimemediamarker.h>
#include <VySmil/values/keyword_p.h>

int VySmil::VyTimeMediaMarker::fromString(const QString &text)
{
    const QString own = text.trimmed(); // the text may be the field that is written first
    QStringView rest = own;
    if (!VySmilPrivate::takeId(rest, id))
        return RESULT_UNUSABLE;
    const QStringView keyword = u"marker(";
    if (!VySmilPrivate::startsLowered(rest, keyword))
        return RESULT_UNUSABLE;
    rest = rest.sliced(keyword.size());
    const QStringView name = VySmilPrivate::cutAt(u')', rest);
    if (name.isNull())
        return RESULT_UNUSABLE;
    markerName = name.trimmed().toString();
    return RESULT_OK;
}

QString VySmil::VyTimeMediaMarker::toString() const
{
    return id + QStringView(u".marker(") + markerName + u')';
}
