// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/showntext_p.h>

namespace {

bool fitsIntoLine(QChar c)
{
    if (c >= u' ' && c <= u'~')
        return true;
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        break;
    }
    // The controls of the direction of writing.
    const char16_t code = c.unicode();
    return code != 0x061C && code != 0x200E && code != 0x200F && (code < 0x202A || code > 0x202E) &&
           (code < 0x2066 || code > 0x2069);
}

} // namespace

namespace VySmilPrivate {

void appendShown(QString &line, QStringView text, int limit)
{
    int count = 0;
    for (qsizetype i = 0; i < text.size(); ++i, ++count) {
        if (count == limit) {
            line += QLatin1String("...");
            return;
        }
        const QChar c = text[i];
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            line += text.sliced(i++, 2);
        else
            line += fitsIntoLine(c) ? c : QChar(QChar::ReplacementCharacter);
    }
}

} // namespace VySmilPrivate
