// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_LAYOUT_P_H
#define VYSMIL_LAYOUT_P_H

#include <VySmil/message/vysmilslideshow.h>
#include <VySmil/values/vylength.h>

#include <QHash>

#include <optional>

namespace VySmilPrivate {

/// The greatest length that counts, in pixels.
constexpr int maxLength = 65'535;

/// A region that has something left within the root layout.
struct Area
{
    QRect rect;
    QString fit;
};

/// The root layout and the regions of a document, wherever in it they stand.
class Layout
{
public:
    Layout(const VySmilElemBase &root, QSize screen);

    QSize size;
    bool isSizeGuessed = false;

    /// The region called \a id, exactly or else in any letter case; null if there is none.
    const Area *find(const QString &id) const;

private:
    void addRegion(const VySmilElemBase &elem);

    QHash<QString, Area> areas;
    QHash<QString, Area> areasByFoldedId;
};

/// Gives the media of a slide that no region places their rectangles in a root layout of \a size: all of it,
/// or where the slide shows a text and something else, its lower fifth to the text and the rest to the other.
void placeByDefault(QList<VySmilMedium> &media, QSize size);

/// The options with the defaults where they are 0 or less, and lengths that count.
VySmilSlideShowOptions withDefaults(VySmilSlideShowOptions options);

/// The attribute \a name as a length, if it reads as one.
std::optional<VySmil::VyLength> readLength(const VySmilElemBase &elem, const QString &name);

/// What a length comes to where \a hundredPercent is all there is.
double numberOf(const VySmil::VyLength &length, double hundredPercent);

/// To the nearest whole number, half up.
int rounded(double number);

} // namespace VySmilPrivate

#endif
