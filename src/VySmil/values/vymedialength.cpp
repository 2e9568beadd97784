// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/values/number_p.h>
#include <VySmil/values/vymedialength.h>

int VySmil::VyMediaLength::fromString(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty()) {
        kind = NUMBER_NONE;
        return RESULT_OK;
    }
    if (trimmed.endsWith(u'%')) {
        kind = NUMBER_PERCENT;
        return VySmilPrivate::resultOf(VySmilPrivate::readFloat(trimmed.chopped(1), value.percent));
    }
    kind = NUMBER_ABSOLUTE;
    return VySmilPrivate::resultOf(VySmilPrivate::readSigned(trimmed, value.number));
}

QString VySmil::VyMediaLength::toString() const
{
    switch (kind) {
    case NUMBER_NONE:
        return QString();
    case NUMBER_ABSOLUTE:
        return QString::number(value.number);
    default:
        return VySmilPrivate::fixedSix(value.percent) + u'%';
    }
}
