// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_DOCUMENTBOUNDS_P_H
#define VYSMIL_DOCUMENTBOUNDS_P_H

#include <QString>

#include <optional>

namespace VySmilPrivate {

/// The \a text without the white space between tags and other markup, which costs a DOM time and gives it
/// nothing. No value if a DOM would cost more than the length of the text warrants: if elements nest deeper
/// than \a maxDepth, an element has more than \a maxAttributes attributes, or there is an internal DTD
/// subset.
///
/// One linear pass that checks nothing else. Up to its first fault a text is seen here as an XML parser sees
/// it; what comes after the fault does not matter, since the parser stops there.
std::optional<QString> boundedDocument(QStringView text, int maxDepth, int maxAttributes);

} // namespace VySmilPrivate

#endif
