// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_CHECK_TEXT_P_H
#define VYSMIL_CHECK_TEXT_P_H

#include <QStringView>

#include <algorithm>

namespace VySmilPrivate {

/// Whether there are digits, and nothing else.
inline bool isDigits(QStringView text) noexcept
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// Whether there are digits, and behind them nothing but \a unit.
inline bool isDigitsBefore(QStringView text, QStringView unit) noexcept
{
    return text.endsWith(unit) && isDigits(text.chopped(unit.size()));
}

} // namespace VySmilPrivate

#endif
