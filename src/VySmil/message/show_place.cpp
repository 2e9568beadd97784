// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_kind_p.h>
#include <VySmil/message/show_layout_p.h>
#include <VySmil/message/show_place_p.h>

#include <algorithm>

namespace {

bool hasTextAndOther(const VySmilSlide &slide)
{
    const auto isText = [](const VySmilMedium &medium) { return medium.kind == VySmilMedium::MEDIUM_TEXT; };
    const auto isOther = [&isText](const VySmilMedium &medium) {
        const bool isSeen = VySmilPrivate::isVisual(medium.kind) ||
                            (medium.kind != VySmilMedium::MEDIUM_AUDIO && !medium.rect.isEmpty());
        return isSeen && !isText(medium);
    };
    return std::any_of(slide.media.begin(), slide.media.end(), isText) &&
           std::any_of(slide.media.begin(), slide.media.end(), isOther);
}

} // namespace

namespace VySmilPrivate {

DefaultPlaces::DefaultPlaces(const QList<VySmilSlide> &slides, QSize size)
    : m_text(QPoint(0, 0), size), m_other(m_text)
{
    const int upperHeight = rounded(size.height() * 4 / 5.0);
    if (upperHeight <= 0 || upperHeight >= size.height() ||
        std::none_of(slides.begin(), slides.end(), hasTextAndOther))
        return;
    m_other.setHeight(upperHeight);
    m_text.setTop(upperHeight);
}

QRect DefaultPlaces::of(VySmilMedium::MEDIUM_KIND kind) const
{
    return !isVisual(kind) ? QRect() : kind == VySmilMedium::MEDIUM_TEXT ? m_text : m_other;
}

void DefaultPlaces::place(VySmilMedium &medium) const
{
    if (!isVisual(medium.kind))
        return;
    medium.rect = medium.area = of(medium.kind);
    medium.fit = usualFit(medium.kind);
}

} // namespace VySmilPrivate
