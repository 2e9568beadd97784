// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_COMPOSE_REGIONS_P_H
#define VYSMIL_COMPOSE_REGIONS_P_H

#include <VySmil/message/vysmilslideshow.h>

#include <optional>
#include <vector>

namespace VySmilPrivate {

/// A region to be written.
struct WrittenRegion
{
    QString id;
    QRect rect;
    QString fit; ///< empty, or one that SMIL has
};

/// The regions that a slide show needs, and which of them shows each medium.
class RegionPlan
{
public:
    /// \a size has usable sides.
    RegionPlan(const QList<VySmilSlide> &slides, QSize size);

    const std::vector<WrittenRegion> &regions() const noexcept { return m_regions; }
    /// The id of the region of the next medium of all slides, in their order; empty where it has no place.
    QString nextId();

private:
    std::vector<WrittenRegion> m_regions;
    std::vector<int> m_regionOfMedia; // -1: no place
    std::size_t m_next = 0;
};

/// The rectangle in whole percent of \a size: the least from which reading finds its edges again. Nothing if
/// there are none.
std::optional<QRect> inPercent(const QRect &rect, QSize size);

} // namespace VySmilPrivate

#endif
