// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TAGREADER_P_H
#define VYSMIL_TAGREADER_P_H

#include <VySmil/parser/textcursor_p.h>

#include <array>
#include <iterator>
#include <vector>

namespace VySmilPrivate {

/// An attribute as it stands in a text that may be damaged.
struct LooseAttribute
{
    QStringView name;
    bool hasValue; ///< there is a "="
    QStringView value;
};

/// A tag as it stands in a text that may be damaged.
struct LooseTag
{
    QStringView name;
    bool isNamed = false; ///< by a name that counts, of ASCII characters and not too long
    bool isEnd = false;
    bool isEmpty = false;
    std::vector<LooseAttribute> attributes;
};

/// Finds the tags of a text that may be damaged, as far as they can be told: attributes may lack quotes, or
/// one of them, and values may hold what XML does not allow there.
///
/// Comments, CDATA sections, instructions and document types are passed over, attributes whose name is none
/// of ASCII characters, or too long, left out. Of well-formed text it finds the tags that an XML reader does.
class TagReader
{
public:
    /// \a text outlives the reader, and what it gives. In well-formed text typographic quotes are characters
    /// like others.
    explicit TagReader(QStringView text, bool isWellFormed = false);

    /// Goes to the first tag that could be that of the root. False if there is none.
    bool goToRoot();
    /// What has not been read.
    QStringView rest() const { return m_text.rest(); }

    /// Reads the next tag. False if there is none.
    bool readNext();
    /// What was read last.
    const LooseTag &tag() const { return m_tag; }

private:
    // A quote that decides on all values which began before it in quotes of its kind: it is their end, or
    // they have none.
    struct Decision
    {
        const char16_t *quote;
        bool isEnd;
    };

    bool skipSection();
    bool skipDoctype();
    int quoteKind(char16_t c) const;
    QStringView takeToken(TextCursor &text) const;
    void readAttributes();
    QStringView readValue();
    Decision decisionFrom(const char16_t *start, int kind);
    bool endsValue(const char16_t *quote, int kind) const;

    const char16_t *const m_begin;
    const bool m_isWellFormed;
    TextCursor m_text;
    LooseTag m_tag;
    // What has been looked for already, so that nothing is looked for again and again.
    std::array<bool, std::size(sections)> m_isSectionEndMissing{}; // in all that comes, of each kind
    bool m_isSubsetEndMissing = false; // likewise for the end of a subset of a document type
    const char16_t *m_noDoctypeBefore;
    std::array<Decision, 4> m_decisions; // the last for each kind of quote
};

} // namespace VySmilPrivate

#endif
