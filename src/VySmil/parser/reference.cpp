// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/parser/reference_p.h>

namespace {

using VySmilPrivate::TextCursor;

constexpr char32_t noCharacter = 0x110000;

// From behind "&#" on; no number of a character where a digit or the ";" is missing.
char32_t readNumber(TextCursor &text)
{
    const char32_t base = text.skip(u"x") ? 16 : 10;
    const char16_t *const start = text.at;
    char32_t number = 0;
    for (; !text.isAtEnd() && VySmilPrivate::isHexDigit(*text.at); ++text.at) {
        const char16_t c = *text.at;
        const char32_t digit = c <= u'9' ? c - u'0' : (c | 0x20) - u'a' + 10;
        if (digit >= base)
            return noCharacter;
        number = std::min<char32_t>(number * base + digit, noCharacter);
    }
    return text.at > start && text.skip(u";") ? number : noCharacter;
}

} // namespace

char32_t VySmilPrivate::readReference(TextCursor &text)
{
    static constexpr struct
    {
        QStringView reference;
        char32_t character;
    } entities[] = {
        {u"&amp;", U'&'}, {u"&lt;", U'<'}, {u"&gt;", U'>'}, {u"&quot;", U'"'}, {u"&apos;", U'\''}};
    for (const auto &[reference, character] : entities) {
        if (text.skip(reference))
            return character;
    }
    const char16_t *const start = text.at;
    const char32_t number = text.skip(u"&#") ? readNumber(text) : noCharacter;
    if (number < noCharacter)
        return number;
    text.at = start;
    return 0;
}
