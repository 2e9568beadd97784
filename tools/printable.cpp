// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "printable.h"

namespace {

bool isIn(char16_t unit, char16_t first, char16_t last)
{
    return unit >= first && unit <= last;
}

// Whether the unit at this position is not to reach a terminal as it stands.
bool isUnprintable(QStringView text, qsizetype at)
{
    const char16_t unit = text[at].unicode();
    if (QChar::isHighSurrogate(unit))
        return at + 1 == text.size() || !text[at + 1].isLowSurrogate();
    if (QChar::isLowSurrogate(unit))
        return at == 0 || !text[at - 1].isHighSurrogate();
    return (unit < 0x20 && unit != u'\t') || isIn(unit, 0x7f, 0x9f) || unit == 0x61c ||
           isIn(unit, 0x200e, 0x200f) || isIn(unit, 0x2028, 0x202e) || isIn(unit, 0x2066, 0x2069);
}

template <typename Escape>
QString withEscapes(QStringView text, Escape escape)
{
    QString shown;
    shown.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (isUnprintable(text, at))
            shown += escape(text[at].unicode());
        else
            shown += text[at];
    }
    return shown;
}

QString hexadecimal(char16_t unit, int digits)
{
    return QString::number(unit, 16).rightJustified(digits, u'0');
}

QString asJson(char16_t unit)
{
    return QStringLiteral("\\u") + hexadecimal(unit, 4);
}

} // namespace

QString printable(QStringView text)
{
    return withEscapes(text, [](char16_t unit) {
        if (unit == u'\n')
            return QStringLiteral("\\n");
        if (unit == u'\r')
            return QStringLiteral("\\r");
        return unit < 0x100 ? QStringLiteral("\\x") + hexadecimal(unit, 2) : asJson(unit);
    });
}

QString printableJson(QStringView json)
{
    return withEscapes(json, asJson);
}

QString printableXml(QStringView xml)
{
    return withEscapes(xml, [](char16_t unit) {
        return unit == u'\n' ? QStringLiteral("\n") : QStringLiteral("&#x%1;").arg(hexadecimal(unit, 0));
    });
}
