// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/values/keyword_p.h>
#include <VySmil/values/number_p.h>
#include <VySmil/values/vyindex.h>

int VySmil::VyIndex::fromString(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty()) {
        kind = INDEX_NONE;
        return RESULT_OK;
    }
    if (VySmilPrivate::equalsLowered(trimmed, u"inherit")) {
        kind = INDEX_INHERIT;
        return RESULT_OK;
    }
    if (VySmilPrivate::equalsLowered(trimmed, u"auto")) {
        kind = INDEX_AUTO;
        return RESULT_OK;
    }
    const bool isRead = VySmilPrivate::readUnsigned(trimmed, value);
    kind = isRead ? INDEX_VALUE : INDEX_NONE;
    return VySmilPrivate::resultOf(isRead);
}

QString VySmil::VyIndex::toString() const
{
    switch (kind) {
    case INDEX_NONE:
        return QString();
    case INDEX_INHERIT:
        return QStringLiteral("inherit");
    case INDEX_AUTO:
        return QStringLiteral("auto");
    default:
        return QString::number(value);
    }
}
