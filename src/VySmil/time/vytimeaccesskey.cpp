// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/time/vytimeaccesskey.h>

int VySmil::VyTimeAccessKey::fromString(const QString &text)
{
    const QString own = text.trimmed(); // the text may be the field that is written first
    const QStringView trimmed = own;
    const QStringView keyword = u"accesskey(";
    const qsizetype at = trimmed.indexOf(keyword);
    if (at < 0)
        return RESULT_UNUSABLE;
    QStringView rest = trimmed.sliced(at + keyword.size());
    const QStringView found = VySmilPrivate::cutAt(u')', rest);
    if (found.isEmpty())
        return RESULT_UNUSABLE;
    key = found.toString();
    return VySmilPrivate::readTime(rest, offset);
}

QString VySmil::VyTimeAccessKey::toString() const
{
    return QStringView(u"accesskey(") + key + u')' + offset.toString();
}
