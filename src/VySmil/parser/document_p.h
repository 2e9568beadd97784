// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_DOCUMENT_P_H
#define VYSMIL_DOCUMENT_P_H

#include <QStringView>

namespace VySmilPrivate {

/// The part of a text that VySmilParser::parse() reads.
QStringView documentIn(QStringView text);

/// What parse() does not let Qt see: what would cost a reader more than the length of the text warrants, and
/// what Qt reads although no document may hold it.
enum class Excess {
    None,
    Depth,      ///< an element beyond VySmilParser::MAX_DEPTH
    Attributes, ///< a tag with more than VySmilParser::MAX_ATTRIBUTES attributes
    Doctype,    ///< a document type declaration with an internal subset, or one that is out of place
};

/// Where the tags of a document begin, and its first excess.
struct Outline
{
    qsizetype root = -1; ///< the "<" of the first tag
    Excess excess = Excess::None;
    qsizetype begin = -1; ///< the "<" of what exceeds
    qsizetype end = -1;   ///< of a tag that exceeds: its ">", or the end of the document
};

/// Looks at the whole document, or up to its first excess.
///
/// Up to its first fault the text is seen as an XML reader sees it; what comes after the fault does not
/// matter, since the reader stops there.
Outline outlineOf(QStringView document);

} // namespace VySmilPrivate

#endif
