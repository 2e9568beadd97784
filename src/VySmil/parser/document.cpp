// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/model/vocabulary_p.h>
#include <VySmil/parser/document_p.h>
#include <VySmil/parser/textcursor_p.h>
#include <VySmil/parser/vysmilparser.h>

namespace {

using VySmilPrivate::TextCursor;

// What stands between "<" and ">".
struct Tag
{
    int literals = 0;       // in quotes: an attribute has one
    bool hasSubset = false; // a "[" outside of those; there is no telling then where it ends
};

// Goes to the ">", or to the end.
Tag readTag(TextCursor &text)
{
    Tag tag;
    for (; !text.isAtEnd() && *text.at != u'>'; ++text.at) {
        if (*text.at == u'[')
            tag.hasSubset = true;
        if (*text.at != u'"' && *text.at != u'\'')
            continue;
        const char16_t quote = *text.at++;
        text.goTo(quote);
        if (text.isAtEnd())
            return tag;
        ++tag.literals;
    }
    return tag;
}

// Goes behind what is neither an element nor a declaration, if that comes next.
bool skipSection(TextCursor &text)
{
    for (const auto &[begin, end] : VySmilPrivate::sections) {
        if (text.skip(begin)) {
            text.skipPast(end);
            return true;
        }
    }
    return false;
}

} // namespace

namespace VySmilPrivate {

QStringView documentIn(QStringView text)
{
    const QStringView document = text.trimmed();
    const QString rootTag = u'<' + nameOf(Elem::Smil);
    return document.sliced(std::max<qsizetype>(document.indexOf(rootTag), 0));
}

Outline outlineOf(QStringView document)
{
    Outline outline;
    TextCursor text(document);
    const auto position = [&] { return text.at - document.utf16(); };
    bool mayDeclareType = true; // once, before the root
    for (int depth = 0; text.goTo(u'<'), !text.isAtEnd();) {
        outline.begin = position();
        if (skipSection(text))
            continue;
        if (text.skip(u"</")) {
            --depth;
            text.skipPast(u">");
            continue;
        }
        const bool isType = text.isAt(u"<!DOCTYPE");
        const bool isElement = !text.isAt(u"<!");
        const Tag tag = readTag(text);
        outline.end = position();
        if (isElement) {
            if (outline.root < 0)
                outline.root = outline.begin;
            if (tag.literals > VySmilParser::MAX_ATTRIBUTES)
                outline.excess = Excess::Attributes;
            else if (++depth > VySmilParser::MAX_DEPTH)
                outline.excess = Excess::Depth;
            if (!text.isAtEnd() && text.at[-1] == u'/')
                --depth;
        } else if (isType && (tag.hasSubset || !mayDeclareType)) {
            outline.excess = Excess::Doctype;
        }
        if (outline.excess != Excess::None)
            break;
        mayDeclareType = mayDeclareType && !isType && !isElement;
    }
    return outline;
}

} // namespace VySmilPrivate
