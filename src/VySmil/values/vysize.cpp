// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/values/number_p.h>
#include <VySmil/values/vysize.h>

int VySmil::VySize::fromString(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty()) {
        unit = UNIT_NONE;
        return RESULT_OK;
    }
    if (const qsizetype px = trimmed.indexOf(u"px", 0, Qt::CaseInsensitive); px >= 0) {
        unit = UNIT_PIXELS;
        return VySmilPrivate::resultOf(VySmilPrivate::readSigned(trimmed.first(px), value.pixels));
    }
    if (const qsizetype percent = trimmed.indexOf(u'%'); percent >= 0) {
        unit = UNIT_PERCENT;
        const bool isRead = VySmilPrivate::readFloat(trimmed.first(percent), value.fraction);
        value.fraction /= 100;
        return VySmilPrivate::resultOf(isRead);
    }
    return RESULT_UNUSABLE;
}

QString VySmil::VySize::toString() const
{
    switch (unit) {
    case UNIT_NONE:
        return QString();
    case UNIT_PIXELS:
        return QString::number(value.pixels) + QStringView(u"px");
    default:
        return VySmilPrivate::significantSix(value.fraction * 100) + u'%';
    }
}
