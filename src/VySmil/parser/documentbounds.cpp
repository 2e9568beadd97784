// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/parser/documentbounds_p.h>

#include <algorithm>

namespace {

// The position after the next end, or after the text if there is none: such a text is no XML.
qsizetype skipPast(QStringView text, QStringView end, qsizetype from)
{
    const qsizetype at = text.indexOf(end, from);
    return at < 0 ? text.size() : at + end.size();
}

// A tag or a document type declaration.
struct Tag
{
    qsizetype end;    // after its ">", or after the text if it is cut off
    int literals = 0; // quoted literals seen: one per attribute
    bool hasSubset = false;
};

// Stops early where a bound is exceeded.
Tag scanTag(QStringView text, qsizetype from, int maxLiterals)
{
    const char16_t *const begin = text.utf16();
    const char16_t *const end = begin + text.size();
    Tag tag{text.size()};
    for (const char16_t *c = begin + from; c < end; ++c) {
        if (*c == u'>') {
            tag.end = c + 1 - begin;
            break;
        }
        if (*c == u'[') {
            tag.hasSubset = true;
            break;
        }
        if (*c == u'"' || *c == u'\'') {
            c = std::find(c + 1, end, *c);
            if (c < end && ++tag.literals > maxLiterals)
                break;
        }
    }
    return tag;
}

bool isWhiteSpace(QStringView text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c == u' ' || c == u'\n' || c == u'\r' || c == u'\t'; });
}

} // namespace

std::optional<QString> VySmilPrivate::boundedDocument(QStringView text, int maxDepth, int maxAttributes)
{
    QString document;
    document.reserve(text.size());
    qsizetype taken = 0; // what is before it stands in document, or is left out
    qsizetype end = 0;   // of the latest markup
    int depth = 0;
    for (qsizetype pos = text.indexOf(u'<'); pos >= 0; pos = text.indexOf(u'<', end)) {
        if (end > 0 && end < pos && isWhiteSpace(text.sliced(end, pos - end))) {
            document += text.sliced(taken, end - taken);
            taken = pos;
        }
        const char16_t next = pos + 1 < text.size() ? text[pos + 1].unicode() : u'\0';
        const QStringView markup = text.sliced(pos);
        if (next == u'/') {
            --depth;
            end = skipPast(text, u">", pos);
        } else if (next == u'?') {
            end = skipPast(text, u"?>", pos);
        } else if (next == u'!' && markup.startsWith(u"<!--")) {
            end = skipPast(text, u"-->", pos + 4);
        } else if (next == u'!' && markup.startsWith(u"<![CDATA[")) {
            end = skipPast(text, u"]]>", pos);
        } else {
            const Tag tag = scanTag(text, pos, maxAttributes);
            // No tag holds a "[" outside of its values.
            if (tag.hasSubset || tag.literals > maxAttributes)
                return std::nullopt;
            if (next != u'!' && ++depth > maxDepth)
                return std::nullopt;
            end = tag.end;
            if (next != u'!' && text[end - 1] == u'>' && text[end - 2] == u'/')
                --depth;
        }
    }
    return document += text.sliced(taken);
}
