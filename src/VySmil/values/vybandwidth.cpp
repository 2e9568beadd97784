// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/values/number_p.h>
#include <VySmil/values/vybandwidth.h>

int VySmil::VyBandWidth::fromString(const QString &text)
{
    QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty()) {
        kind = NUMBER_NONE;
        return RESULT_OK;
    }
    kind = NUMBER_ABSOLUTE;
    if (trimmed.endsWith(u'%')) {
        kind = NUMBER_PERCENT;
        trimmed.chop(1);
    }
    return VySmilPrivate::resultOf(VySmilPrivate::readUnsigned(trimmed, value));
}

QString VySmil::VyBandWidth::toString() const
{
    switch (kind) {
    case NUMBER_ABSOLUTE:
        return QString::number(value);
    case NUMBER_PERCENT:
        return QString::number(value) + u'%';
    default:
        return QString();
    }
}
