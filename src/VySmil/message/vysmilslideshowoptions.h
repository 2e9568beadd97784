// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILSLIDESHOWOPTIONS_H
#define VYSMIL_VYSMILSLIDESHOWOPTIONS_H

#include <VySmil/vysmil_export.h>

#include <QObject>
#include <QSize>

/// What a slide show takes for what its document does not say. A number of 0 or less means its default.
///
/// \see [Showing a received message](showing.md)
class VYSMIL_EXPORT VySmilSlideShowOptions
{
    Q_GADGET
    Q_PROPERTY(QSize screen MEMBER screen)
    Q_PROPERTY(qint32 defaultDurationMs MEMBER defaultDurationMs)

public:
    QSize screen; ///< for a document without a size of its own, in pixels; each side by itself: 320 x 480
    qint32 defaultDurationMs = 5000; ///< of a slide for which nothing else gives a duration

    /// Whether both fields are the same.
    bool operator==(const VySmilSlideShowOptions &other) const noexcept;
    /// Whether a field differs.
    bool operator!=(const VySmilSlideShowOptions &other) const noexcept { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(VySmilSlideShowOptions, Q_RELOCATABLE_TYPE);

#endif
