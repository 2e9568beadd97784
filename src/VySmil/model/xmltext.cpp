// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/xmltext_p.h>

namespace {

// The first position at or after from whose character cannot be written as it stands.
qsizetype findSpecial(QStringView value, qsizetype from)
{
    for (qsizetype i = from; i < value.size(); ++i) {
        const char16_t c = value[i].unicode();
        if (c < u' ' || c == u'"' || c == u'&' || c == u'<' || c >= 0xfffe)
            return i;
        if (!QChar::isSurrogate(c))
            continue;
        const bool isPair =
            QChar::isHighSurrogate(c) && i + 1 < value.size() && value[i + 1].isLowSurrogate();
        if (!isPair)
            return i;
        ++i;
    }
    return value.size();
}

QLatin1String substitute(char16_t special)
{
    switch (special) {
    case u'"':
        return QLatin1String("&quot;");
    case u'&':
        return QLatin1String("&amp;");
    case u'<':
        return QLatin1String("&lt;");
    case u'\t':
        return QLatin1String("&#9;");
    case u'\n':
        return QLatin1String("&#10;");
    case u'\r':
        return QLatin1String("&#13;");
    default:
        return {};
    }
}

} // namespace

void VySmilPrivate::appendAttributeValue(QString &out, QStringView value)
{
    qsizetype written = 0;
    for (;;) {
        const qsizetype special = findSpecial(value, written);
        out += value.sliced(written, special - written);
        if (special == value.size())
            return;
        const QLatin1String text = substitute(value[special].unicode());
        if (text.isEmpty())
            out += QChar(QChar::ReplacementCharacter);
        else
            out += text;
        written = special + 1;
    }
}
