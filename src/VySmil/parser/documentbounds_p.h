// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_DOCUMENTBOUNDS_P_H
#define VYSMIL_DOCUMENTBOUNDS_P_H

#include <QStringView>

namespace VySmilPrivate {

/// Whether a DOM of \a text costs no more than its length warrants: false if elements nest deeper than
/// \a maxDepth, an element has more than \a maxAttributes attributes, or there is an internal DTD subset.
///
/// One linear pass that checks nothing else. Up to its first fault a text is seen here as an XML parser sees
/// it; what comes after the fault does not matter, since the parser stops there.
bool isWithinBounds(QStringView text, int maxDepth, int maxAttributes);

} // namespace VySmilPrivate

#endif
