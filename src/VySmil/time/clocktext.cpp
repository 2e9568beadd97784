// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/values/number_p.h>

QString VySmilPrivate::secondsText(float seconds)
{
    QString text = fixedSix(seconds);
    if (text.size() > 1 && text[1] == u'.')
        text.prepend(u'0');
    return text;
}

QStringView VySmilPrivate::cutAt(QChar separator, QStringView &rest)
{
    const qsizetype at = rest.indexOf(separator);
    if (at < 0)
        return {};
    const QStringView before = rest.first(at);
    rest = rest.sliced(at + 1);
    return before;
}

bool VySmilPrivate::takeId(QStringView &rest, QString &id)
{
    const QStringView found = cutAt(u'.', rest);
    if (found.isNull())
        return false;
    id = found.toString();
    return true;
}
