// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/parser/plainreader_p.h>
#include <VySmil/parser/reference_p.h>
#include <VySmil/parser/vysmilparser.h>

#include <algorithm>

namespace {

using VySmilPrivate::isBlank;

// What XML allows anywhere, leaving out some.
constexpr auto isCharacter = [](char16_t c) { return (c >= u' ' && c < 0xd800) || isBlank(c); };

using Outcome = VySmilPrivate::PlainReader::Outcome;

constexpr Outcome doneIf(bool isDone)
{
    return isDone ? Outcome::Done : Outcome::Unsure;
}

} // namespace

namespace VySmilPrivate {

PlainReader::PlainReader(QStringView document, TreeBuilder &treeBuilder)
    : m_builder(treeBuilder), m_text(document)
{
}

Outcome PlainReader::read()
{
    while (!m_text.isAtEnd()) {
        if (const Outcome step = readMarkup(); step != Outcome::Done)
            return step;
    }
    return m_open.empty() ? doneIf(m_hasRoot) : Outcome::Refused;
}

// A tag, a comment, or the text between those.
Outcome PlainReader::readMarkup()
{
    if (m_text.skip(u"</"))
        return readEndTag();
    if (m_text.skip(u"<!--"))
        return readComment();
    return m_text.skip(u"<") ? readStartTag() : readText();
}

// Up to the next markup. Outside of the root there are only blanks.
Outcome PlainReader::readText()
{
    if (m_open.empty())
        m_text.skipBlanks();
    else
        m_text.at = std::find_if(m_text.at, m_text.end, [](char16_t c) {
            return c == u'<' || c == u'&' || c == u']' || !isCharacter(c);
        });
    return doneIf(m_text.isAtEnd() || m_text.isAt(u'<'));
}

// From behind "<!--" on; the next "--" must be that of the end.
Outcome PlainReader::readComment()
{
    for (; !m_text.isAtEnd() && isCharacter(*m_text.at); ++m_text.at) {
        if (*m_text.at == u'-' && m_text.skip(u"--"))
            return doneIf(m_text.skip(u">"));
    }
    return Outcome::Unsure;
}

// From behind "</" on.
Outcome PlainReader::readEndTag()
{
    const QStringView tag = readName();
    m_text.skipBlanks();
    if (m_open.empty() || tag.isEmpty() || !m_text.skip(u">"))
        return Outcome::Unsure;
    if (tag != m_open.back())
        return Outcome::Refused;
    m_open.pop_back();
    m_builder.endElement();
    return Outcome::Done;
}

// From behind "<" on.
Outcome PlainReader::readStartTag()
{
    if (m_hasRoot && m_open.empty())
        return Outcome::Unsure;
    m_hasRoot = true;
    const QStringView tag = readName();
    if (tag.isEmpty())
        return Outcome::Unsure;
    if (const Outcome step = readAttributes(); step != Outcome::Done)
        return step;
    const bool isEmpty = m_text.skip(u"/");
    if (!m_text.skip(u">"))
        return Outcome::Unsure;
    if (m_open.size() == VySmilParser::MAX_DEPTH)
        return Outcome::Refused;
    m_builder.startElement(tag, m_attributes);
    if (isEmpty)
        m_builder.endElement();
    else
        m_open.push_back(tag);
    return Outcome::Done;
}

Outcome PlainReader::readAttributes()
{
    m_attributes.clear();
    while (m_text.skipBlanks() && !m_text.isAt(u'/') && !m_text.isAt(u'>')) {
        const QStringView name = readName();
        m_text.skipBlanks();
        if (name.isEmpty() || !m_text.skip(u"="))
            return Outcome::Unsure;
        m_text.skipBlanks();
        m_attributes.push_back({interned(name), QString()});
        if (readValue(m_attributes.back().value) != Outcome::Done)
            return Outcome::Unsure;
        if (m_attributes.size() > VySmilParser::MAX_ATTRIBUTES)
            return Outcome::Refused;
    }
    sortByName(m_attributes);
    const auto isSame = [](const Attribute &a, const Attribute &b) { return a.name == b.name; };
    return doneIf(std::adjacent_find(m_attributes.begin(), m_attributes.end(), isSame) == m_attributes.end());
}

Outcome PlainReader::readValue(QString &value)
{
    if (!m_text.isAt(u'"') && !m_text.isAt(u'\''))
        return Outcome::Unsure;
    const char16_t quote = *m_text.at++;
    for (;;) {
        const char16_t *const start = m_text.at;
        m_text.at = std::find_if(m_text.at, m_text.end, [quote](char16_t c) {
            return c == quote || c == u'&' || c == u'<' || c < u' ' || c >= 0xd800;
        });
        // A value in one piece, as most are, takes no more room than it needs.
        const QStringView piece(start, m_text.at);
        if (value.isEmpty())
            value = piece.toString();
        else
            value += piece;
        if (m_text.isAt(quote)) {
            ++m_text.at;
            return Outcome::Done;
        }
        const char32_t c = readReference(m_text);
        if (c >= 0xd800 || !isXmlCharacter(c))
            return Outcome::Unsure;
        value += QChar(static_cast<char16_t>(c));
    }
}

QStringView PlainReader::readName()
{
    const char16_t *const start = m_text.at;
    if (!m_text.isAtEnd() && isNameStart(*m_text.at))
        m_text.at = std::find_if_not(m_text.at, m_text.end, isNamePart);
    return QStringView(start, m_text.at - start <= maxNameSize ? m_text.at : start);
}

} // namespace VySmilPrivate
