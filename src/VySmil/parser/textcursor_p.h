// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TEXTCURSOR_P_H
#define VYSMIL_TEXTCURSOR_P_H

#include <QStringView>

#include <algorithm>

namespace VySmilPrivate {

/// What XML takes for white space in markup.
inline constexpr auto isBlank = [](char32_t c) {
    return c == U' ' || c == U'\n' || c == U'\t' || c == U'\r';
};

/// What a name of ASCII characters begins with.
inline constexpr auto isNameStart = [](char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
};

/// What a name of ASCII characters goes on with, but for a colon.
inline constexpr auto isNamePart = [](char16_t c) {
    return isNameStart(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.';
};

inline constexpr auto isHexDigit = [](char16_t c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
};

/// The greatest length of a name that is read without asking Qt, which takes none of several thousand
/// characters.
inline constexpr qsizetype maxNameSize = 256;

/// What is neither an element nor a declaration.
struct Section
{
    QStringView begin;
    QStringView end;
};
/// Comments, CDATA sections, instructions.
inline constexpr Section sections[] = {{u"<!--", u"-->"}, {u"<![CDATA[", u"]]>"}, {u"<?", u"?>"}};

/// A place in a text that goes forward.
struct TextCursor
{
    /// \a text outlives the cursor.
    explicit TextCursor(QStringView text) : at(text.utf16()), end(at + text.size()) {}

    bool isAtEnd() const { return at == end; }
    bool isAt(char16_t c) const { return at < end && *at == c; }
    bool isAt(QStringView expected) const
    {
        return end - at >= expected.size() &&
               std::equal(expected.utf16(), expected.utf16() + expected.size(), at);
    }
    QStringView from(const char16_t *start) const { return QStringView(start, at); }
    QStringView rest() const { return QStringView(at, end); }

    /// Goes behind \a expected, if that comes next.
    bool skip(QStringView expected)
    {
        const bool isNext = isAt(expected);
        if (isNext)
            at += expected.size();
        return isNext;
    }
    /// Goes behind the next \a expected, or to the end if there is none.
    bool skipPast(QStringView expected)
    {
        at = std::search(at, end, expected.utf16(), expected.utf16() + expected.size());
        return skip(expected);
    }
    /// Goes to the next \a c, or to the end.
    void goTo(char16_t c) { at = std::find(at, end, c); }
    /// Whether there are any.
    bool skipBlanks()
    {
        const char16_t *const start = at;
        at = std::find_if_not(at, end, isBlank);
        return at > start;
    }

    const char16_t *at;
    const char16_t *end;
};

} // namespace VySmilPrivate

#endif
