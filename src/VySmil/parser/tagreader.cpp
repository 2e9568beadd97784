// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/parser/tagreader_p.h>

namespace {

constexpr int noQuote = -1;

constexpr int typographicQuoteKind(char16_t c)
{
    switch (c) {
    case u'\u201c':
    case u'\u201d':
    case u'\u201e':
    case u'\u201f':
        return 2;
    case u'\u2018':
    case u'\u2019':
    case u'\u201a':
    case u'\u201b':
        return 3;
    default:
        return noQuote;
    }
}

bool isName(QStringView token)
{
    if (token.isEmpty() || token.size() > VySmilPrivate::maxNameSize)
        return false;
    const qsizetype colon = token.indexOf(u':');
    const auto isWhole = [](QStringView part) {
        const char16_t *const begin = part.utf16();
        const char16_t *const end = begin + part.size();
        return begin < end && VySmilPrivate::isNameStart(*begin) &&
               std::all_of(begin, end, VySmilPrivate::isNamePart);
    };
    return colon < 0 ? isWhole(token) : isWhole(token.first(colon)) && isWhole(token.sliced(colon + 1));
}

} // namespace

namespace VySmilPrivate {

TagReader::TagReader(QStringView text, bool isWellFormed)
    : m_begin(text.utf16()), m_isWellFormed(isWellFormed), m_text(text), m_noDoctypeBefore(m_begin)
{
    m_decisions.fill({m_begin, false});
}

bool TagReader::goToRoot()
{
    while (m_text.goTo(u'<'), !m_text.isAtEnd()) {
        if (skipSection())
            continue;
        const char16_t *const start = m_text.at++;
        const QStringView token = takeToken(m_text);
        const bool isCalledSmil =
            isName(token) && token.compare(nameOf(Elem::Smil), Qt::CaseInsensitive) == 0;
        if (isCalledSmil &&
            (m_text.isAtEnd() || isBlank(*m_text.at) || m_text.isAt(u'/') || m_text.isAt(u'>'))) {
            m_text.at = start;
            return true;
        }
    }
    return false;
}

bool TagReader::readNext()
{
    while (m_text.goTo(u'<'), !m_text.isAtEnd()) {
        if (skipSection() || skipDoctype())
            continue;
        ++m_text.at;
        m_tag.isEnd = m_text.skip(u"/");
        if (m_text.isAt(u'!') || m_text.isAt(u'?'))
            continue;
        m_tag.name = takeToken(m_text);
        if (m_tag.name.isEmpty())
            continue;
        m_tag.isNamed = isName(m_tag.name);
        readAttributes();
        return true;
    }
    return false;
}

// Goes behind a comment, a CDATA section or an instruction, if one with an end comes next.
bool TagReader::skipSection()
{
    const char16_t *const start = m_text.at;
    for (std::size_t kind = 0; kind < m_isSectionEndMissing.size(); ++kind) {
        if (m_isSectionEndMissing[kind] || !m_text.skip(sections[kind].begin))
            continue;
        if (m_text.skipPast(sections[kind].end))
            return true;
        m_isSectionEndMissing[kind] = true;
        m_text.at = start;
        return false;
    }
    return false;
}

// Goes behind a document type declaration, if one with an end comes next.
bool TagReader::skipDoctype()
{
    const char16_t *const start = m_text.at;
    if (start < m_noDoctypeBefore || !m_text.skip(u"<!DOCTYPE"))
        return false;
    m_text.at = std::find_if(m_text.at, m_text.end, [](char16_t c) { return c == u'>' || c == u'['; });
    if (m_text.skip(u">"))
        return true;
    m_noDoctypeBefore = m_text.at;
    while (!m_isSubsetEndMissing && m_text.skipPast(u"]")) {
        m_text.skipBlanks();
        if (m_text.skip(u">"))
            return true;
    }
    m_isSubsetEndMissing = true;
    m_text.at = start;
    return false;
}

// Any quote of a kind ends what any of that kind began.
int TagReader::quoteKind(char16_t c) const
{
    if (c == u'"')
        return 0;
    if (c == u'\'')
        return 1;
    return m_isWellFormed ? noQuote : typographicQuoteKind(c);
}

// What could be a name.
QStringView TagReader::takeToken(TextCursor &text) const
{
    const char16_t *const start = text.at;
    text.at = std::find_if(text.at, text.end, [this](char16_t c) {
        return isBlank(c) || c == u'/' || c == u'>' || c == u'<' || c == u'=' || quoteKind(c) != noQuote;
    });
    return text.from(start);
}

// All that comes before the end of the tag, and that end.
void TagReader::readAttributes()
{
    m_tag.attributes.clear();
    m_tag.isEmpty = false;
    while (!m_text.isAtEnd() && !m_text.isAt(u'<')) {
        if (m_text.skip(u">"))
            return;
        m_tag.isEmpty = m_text.isAt(u'/') || (m_tag.isEmpty && isBlank(*m_text.at));
        const QStringView name = takeToken(m_text);
        if (name.isEmpty()) {
            ++m_text.at;
            continue;
        }
        m_text.skipBlanks();
        LooseAttribute attribute{name, m_text.isAt(u'='), {}};
        if (attribute.hasValue)
            attribute.value = readValue();
        if (isName(name))
            m_tag.attributes.push_back(attribute);
    }
    m_tag.isEmpty = false;
}

// From the "=" on.
QStringView TagReader::readValue()
{
    m_text.at = std::find_if_not(m_text.at, m_text.end, [](char16_t c) { return c == u'=' || isBlank(c); });
    const char16_t *start = m_text.at;
    const int kind = m_text.isAtEnd() ? noQuote : quoteKind(*start);
    if (kind != noQuote) {
        ++start;
        const bool isDoubled = start < m_text.end && quoteKind(*start) == kind && !endsValue(start, kind);
        if (isDoubled)
            ++start;
        const Decision decision = decisionFrom(start, kind);
        if (decision.isEnd) {
            m_text.at = decision.quote + 1;
            return QStringView(start, decision.quote);
        }
    }
    m_text.at = start;
    while (!m_text.isAtEnd() && !isBlank(*m_text.at) && !m_text.isAt(u'>') && !m_text.isAt(u"/>"))
        ++m_text.at;
    const bool hasLooseQuote = m_text.at > start && quoteKind(m_text.at[-1]) != noQuote;
    return m_text.from(start).chopped(hasLooseQuote ? 1 : 0);
}

// For a value that begins at start. The quotes themselves are where they are: what was found for an earlier
// value holds up to there.
TagReader::Decision TagReader::decisionFrom(const char16_t *start, int kind)
{
    Decision &decision = m_decisions[static_cast<std::size_t>(kind)];
    if (decision.quote >= start)
        return decision;
    for (decision = {start, false}; decision.quote < m_text.end; ++decision.quote) {
        if (quoteKind(*decision.quote) != kind)
            continue;
        decision.isEnd = endsValue(decision.quote, kind);
        // The quote of another attribute: that of this one was forgotten.
        if (decision.isEnd || decision.quote[-1] == u'=')
            break;
    }
    return decision;
}

// Whether a quote is followed by what comes behind a value, and not by what is in one.
bool TagReader::endsValue(const char16_t *quote, int kind) const
{
    TextCursor behind(QStringView(quote + 1, m_text.end));
    if (behind.isAtEnd() || isBlank(*behind.at) || behind.isAt(u'/') || behind.isAt(u'>'))
        return true;
    const char16_t *before = quote;
    while (before > m_begin && isBlank(before[-1]))
        --before;
    if (before > m_begin && before[-1] == u'=')
        return false;
    if (behind.isAt(u'<') || quoteKind(*behind.at) == kind)
        return true;
    return isName(takeToken(behind)) && behind.isAt(u'=');
}

} // namespace VySmilPrivate
