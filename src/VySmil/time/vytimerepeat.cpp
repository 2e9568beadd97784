// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/time/vytimerepeat.h>
#include <VySmil/values/number_p.h>

int VySmil::VyTimeRepeat::fromString(const QString &text)
{
    const QString own = text.trimmed(); // the text may be the field that is written first
    const QStringView trimmed = own;
    const QStringView keyword = u"repeat(";
    const qsizetype at = trimmed.indexOf(keyword);
    if (at < 0)
        return RESULT_UNUSABLE;
    if (at > 0) {
        const QStringView before = trimmed.first(at);
        id = (before.endsWith(u'.') ? before.chopped(1) : before).toString();
    }
    QStringView rest = trimmed.sliced(at + keyword.size());
    const QStringView number = VySmilPrivate::cutAt(u')', rest);
    if (number.isNull() || !VySmilPrivate::readUnsigned(number, iteration))
        return RESULT_UNUSABLE;
    return VySmilPrivate::readTime(rest, offset);
}

QString VySmil::VyTimeRepeat::toString() const
{
    QString text = id.trimmed();
    if (!text.isEmpty())
        text += u'.';
    return text + QStringView(u"repeat(") + QString::number(iteration) + u')' + offset.toString();
}
