// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/values/keyword_p.h>
#include <VySmil/values/number_p.h>
#include <VySmil/values/vycount.h>

int VySmil::VyCount::fromString(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty()) {
        kind = COUNT_NONE;
        return RESULT_OK;
    }
    if (VySmilPrivate::equalsLowered(trimmed, u"indefinite")) {
        kind = COUNT_INDEFINITE;
        return RESULT_OK;
    }
    const bool isRead = VySmilPrivate::readFloat(trimmed, value);
    kind = isRead ? COUNT_VALUE : COUNT_NONE;
    return VySmilPrivate::resultOf(isRead);
}

QString VySmil::VyCount::toString() const
{
    switch (kind) {
    case COUNT_NONE:
        return QString();
    case COUNT_INDEFINITE:
        return QStringLiteral("indefinite");
    default:
        return VySmilPrivate::significantSix(value);
    }
}
