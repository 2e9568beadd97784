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
    if (trimmed.contains(u'%')) {
        unit = UNIT_PERCENT;
        return VySmilPrivate::resultOf(VySmilPrivate::readFraction(trimmed, value.fraction));
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
        return VySmilPrivate::fractionText(value.fraction);
    }
}
