// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_DEFAULTS_P_H
#define VYSMIL_SHOW_DEFAULTS_P_H

#include <VySmil/message/vysmilslideshowoptions.h>

#include <algorithm>

namespace VySmilPrivate {

/// The greatest length that counts, in pixels.
constexpr int maxLength = 65'535;

/// \a size with 320 x 480 where a side is 0 or less, and no side above what counts.
inline QSize usableSize(QSize size) noexcept
{
    return {size.width() > 0 ? std::min(size.width(), maxLength) : 320,
            size.height() > 0 ? std::min(size.height(), maxLength) : 480};
}

/// \a ms, or how long a slide lasts where nobody says.
inline qint32 usableDuration(qint32 ms) noexcept
{
    return ms > 0 ? ms : VySmilSlideShowOptions().defaultDurationMs;
}

} // namespace VySmilPrivate

#endif
