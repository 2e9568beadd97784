// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_KEYWORD_P_H
#define VYSMIL_KEYWORD_P_H

#include <QStringView>

#include <algorithm>

namespace VySmilPrivate {

/// Whether \a text, lower-cased, is \a keyword, without making a lower-cased copy. \a keyword is in lower
/// case.
inline bool equalsLowered(QStringView text, QStringView keyword)
{
    // U+0130 becomes two characters in a lower-cased text, and so equals no ASCII letter. Comparing without
    // regard to case would not do: it folds U+017F to "s".
    const auto lowered = [](QChar c) { return c.unicode() == 0x130 ? c : c.toLower(); };
    return text.size() == keyword.size() &&
           std::equal(text.begin(), text.end(), keyword.begin(),
                      [lowered](QChar c, QChar k) { return lowered(c) == k; });
}

/// Whether \a text, lower-cased, starts with \a keyword.
inline bool startsLowered(QStringView text, QStringView keyword)
{
    return text.size() >= keyword.size() && equalsLowered(text.first(keyword.size()), keyword);
}

/// Whether \a text, lower-cased, ends with \a keyword.
inline bool endsLowered(QStringView text, QStringView keyword)
{
    return text.size() >= keyword.size() && equalsLowered(text.last(keyword.size()), keyword);
}

} // namespace VySmilPrivate

#endif
