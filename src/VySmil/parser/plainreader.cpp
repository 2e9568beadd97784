// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/parser/plainreader_p.h>
#include <VySmil/parser/vysmilparser.h>

#include <algorithm>

namespace {

constexpr qsizetype maxNameSize = 256;

constexpr auto isBlank = [](char16_t c) { return c == u' ' || c == u'\n' || c == u'\t' || c == u'\r'; };

// What XML allows anywhere, leaving out some.
constexpr auto isCharacter = [](char16_t c) { return (c >= u' ' && c < 0xd800) || isBlank(c); };

constexpr auto isHexDigit = [](char16_t c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
};

constexpr auto isNameStart = [](char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
};

constexpr auto isNamePart = [](char16_t c) {
    return isNameStart(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.';
};

} // namespace

namespace VySmilPrivate {

PlainReader::PlainReader(QStringView document, TreeBuilder &treeBuilder)
    : builder(treeBuilder), at(document.utf16()), end(at + document.size())
{
}

PlainReader::Outcome PlainReader::read()
{
    while (at < end) {
        const char16_t *const start = at;
        if (readMarkup())
            continue;
        at = start;
        return !isRefused && isWithinBounds() ? Outcome::Unsure : Outcome::Refused;
    }
    return hasRoot && open.empty() ? Outcome::Complete : Outcome::Unsure;
}

// A tag, a comment, or the text between those.
bool PlainReader::readMarkup()
{
    if (skip(u"</"))
        return readEndTag();
    if (skip(u"<!--"))
        return readComment();
    return skip(u"<") ? readStartTag() : readText();
}

// Up to the next markup. Outside of the root there are only blanks.
bool PlainReader::readText()
{
    if (open.empty())
        skipBlanks();
    else
        at = std::find_if(at, end,
                          [](char16_t c) { return c == u'<' || c == u'&' || c == u']' || !isCharacter(c); });
    return at == end || *at == u'<';
}

// From behind "<!--" on; the next "--" must be that of the end.
bool PlainReader::readComment()
{
    for (; at < end && isCharacter(*at); ++at) {
        if (*at == u'-' && skip(u"--"))
            return skip(u">");
    }
    return false;
}

// From behind "</" on.
bool PlainReader::readEndTag()
{
    const QStringView tag = readName();
    skipBlanks();
    if (open.empty() || tag != open.back() || !skip(u">"))
        return false;
    open.pop_back();
    builder.endElement();
    return true;
}

// From behind "<" on.
bool PlainReader::readStartTag()
{
    if (hasRoot && open.empty())
        return false;
    hasRoot = true;
    const QStringView tag = readName();
    if (tag.isEmpty() || !readAttributes())
        return false;
    const bool isEmpty = skip(u"/");
    if (!skip(u">"))
        return false;
    isRefused = open.size() == VySmilParser::MAX_DEPTH;
    if (isRefused)
        return false;
    builder.startElement(tag, attributes);
    if (isEmpty)
        builder.endElement();
    else
        open.push_back(tag);
    return true;
}

bool PlainReader::readAttributes()
{
    attributes.clear();
    while (skipBlanks() && !isAt(u'/') && !isAt(u'>')) {
        const QStringView name = readName();
        skipBlanks();
        if (name.isEmpty() || !skip(u"="))
            return false;
        skipBlanks();
        attributes.push_back({attributeName(name), QString()});
        if (!readValue(attributes.back().value))
            return false;
        isRefused = attributes.size() > VySmilParser::MAX_ATTRIBUTES;
        if (isRefused)
            return false;
    }
    sortByName(attributes);
    const auto isSame = [](const Attribute &a, const Attribute &b) { return a.name == b.name; };
    return std::adjacent_find(attributes.begin(), attributes.end(), isSame) == attributes.end();
}

bool PlainReader::readValue(QString &value)
{
    if (!isAt(u'"') && !isAt(u'\''))
        return false;
    const char16_t quote = *at++;
    for (;;) {
        const char16_t *const start = at;
        at = std::find_if(at, end, [quote](char16_t c) {
            return c == quote || c == u'&' || c == u'<' || c < u' ' || c >= 0xd800;
        });
        const QStringView piece(start, at);
        value = value.isEmpty() ? piece.toString() : value + piece;
        if (isAt(quote)) {
            ++at;
            return true;
        }
        if (!skip(u"&") || !readReference(value))
            return false;
    }
}

// From behind "&" on.
bool PlainReader::readReference(QString &value)
{
    struct Entity
    {
        QStringView name;
        QChar character;
    };
    static constexpr Entity entities[] = {
        {u"amp;", u'&'}, {u"lt;", u'<'}, {u"gt;", u'>'}, {u"quot;", u'"'}, {u"apos;", u'\''}};
    for (const auto &[name, character] : entities) {
        if (skip(name)) {
            value += character;
            return true;
        }
    }
    if (!skip(u"#"))
        return false;
    const int base = skip(u"x") ? 16 : 10;
    const char16_t *const digits = at;
    at = std::find_if_not(at, end, isHexDigit);
    bool isNumber = false;
    const uint code = QStringView(digits, at).toUInt(&isNumber, base);
    if (!isNumber || code >= 0xd800 || !isCharacter(static_cast<char16_t>(code)) || !skip(u";"))
        return false;
    value += QChar(code);
    return true;
}

QStringView PlainReader::readName()
{
    const char16_t *const start = at;
    if (at < end && isNameStart(*at))
        at = std::find_if_not(at, end, isNamePart);
    // Qt takes no name of several thousand characters.
    return QStringView(start, at - start <= maxNameSize ? at : start);
}

// Whether there are any.
bool PlainReader::skipBlanks()
{
    const char16_t *const start = at;
    at = std::find_if_not(at, end, isBlank);
    return at > start;
}

bool PlainReader::skip(QStringView expected)
{
    if (end - at < expected.size() || !std::equal(expected.utf16(), expected.utf16() + expected.size(), at))
        return false;
    at += expected.size();
    return true;
}

// Checks nothing but what would cost a reader more than the length of the text warrants. Up to its first
// fault the text is seen here as an XML reader sees it; what comes after the fault does not matter, since the
// reader stops there.
bool PlainReader::isWithinBounds()
{
    for (int depth = static_cast<int>(open.size()); (at = std::find(at, end, u'<')) < end;) {
        if (skip(u"</")) {
            --depth;
            skipPast(u">");
        } else if (skip(u"<!--")) {
            skipPast(u"-->");
        } else if (skip(u"<![CDATA[")) {
            skipPast(u"]]>");
        } else if (skip(u"<?")) {
            skipPast(u"?>");
        } else {
            const bool isElement = !skip(u"<!");
            if (!isTagWithinBounds() || (isElement && ++depth > VySmilParser::MAX_DEPTH))
                return false;
            if (isElement && at[-1] == u'>' && at[-2] == u'/')
                --depth;
        }
    }
    return true;
}

// A tag, or a document type declaration. Each attribute has a quoted value, and none but a declaration with
// an internal subset holds a "[" outside of those.
bool PlainReader::isTagWithinBounds()
{
    for (int literals = 0; at < end && *at != u'>'; ++at) {
        if (*at == u'[')
            return false;
        if (*at != u'"' && *at != u'\'')
            continue;
        at = std::find(at + 1, end, *at);
        if (at == end)
            return true;
        if (++literals > VySmilParser::MAX_ATTRIBUTES)
            return false;
    }
    skip(u">");
    return true;
}

// Past the next \a expected, or to the end.
void PlainReader::skipPast(QStringView expected)
{
    at = std::search(at, end, expected.utf16(), expected.utf16() + expected.size());
    skip(expected);
}

} // namespace VySmilPrivate
