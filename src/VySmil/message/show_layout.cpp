// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_color_p.h>
#include <VySmil/message/show_defaults_p.h>
#include <VySmil/message/show_layout_p.h>
#include <VySmil/model/vysmilelembase.h>

#include <algorithm>
#include <cmath>

namespace VySmilPrivate {

int rounded(double number) noexcept
{
    return static_cast<int>(std::floor(std::clamp<double>(number, -2 * maxLength, 2 * maxLength) + 0.5));
}

QString textOf(const VySmilElemBase &elem, Attr attr)
{
    QString text = elem.getAttribute(nameOf(attr));
    return QStringView(text).trimmed().isEmpty() ? QString() : text;
}

std::optional<VySmil::VyLength> lengthOf(const VySmilElemBase &elem, Attr attr)
{
    VySmil::VyLength length;
    if (length.fromString(elem.getAttribute(nameOf(attr))) != VySmil::RESULT_OK ||
        length.unit == VySmil::UNIT_NONE)
        return std::nullopt;
    return length;
}

double pixelsOf(const VySmil::VyLength &length, int whole) noexcept
{
    const double pixels = length.unit == VySmil::UNIT_PIXELS
                              ? length.value.pixels
                              : static_cast<double>(length.value.percent) * whole / 100;
    return std::clamp<double>(pixels, -maxLength, maxLength);
}

Edges edgesOf(const std::optional<VySmil::VyLength> &from, const std::optional<VySmil::VyLength> &size,
              int whole) noexcept
{
    const double first = from ? pixelsOf(*from, whole) : 0;
    const double between = size ? pixelsOf(*size, whole) : 0;
    return {rounded(first), between > 0 ? rounded(first + between) : whole};
}

Layout::Layout(const DocumentElements &document, QSize screen)
{
    readSize(document.rootLayout, screen);
    for (const VySmilElemBase *region : document.regions)
        addRegion(*region);
}

void Layout::readSize(const VySmilElemBase *rootLayout, QSize screen)
{
    struct Side
    {
        int pixels;
        bool isGuessed;
        bool isOfScreen;
    };
    const auto read = [rootLayout](Attr attr, int ofScreen) -> Side {
        const auto length = rootLayout ? lengthOf(*rootLayout, attr) : std::nullopt;
        const int pixels = length ? rounded(pixelsOf(*length, ofScreen)) : 0;
        if (pixels <= 0)
            return {ofScreen, true, true};
        const bool isInPercent = length->unit == VySmil::UNIT_PERCENT;
        return {pixels, isInPercent, isInPercent && length->value.percent == 100.0F};
    };
    const Side width = read(Attr::Width, screen.width());
    const Side height = read(Attr::Height, screen.height());
    m_size = QSize(width.pixels, height.pixels);
    m_guesses.setFlag(VySmilMedium::GUESS_SIZE, width.isGuessed || height.isGuessed);
    m_guesses.setFlag(VySmilMedium::GUESS_SCREEN, width.isOfScreen && height.isOfScreen);
}

void Layout::addRegion(const VySmilElemBase &elem)
{
    const QString id = textOf(elem, Attr::Id);
    if (id.isEmpty())
        return;
    const auto [left, right] =
        edgesOf(lengthOf(elem, Attr::Left), lengthOf(elem, Attr::Width), m_size.width());
    const auto [top, bottom] =
        edgesOf(lengthOf(elem, Attr::Top), lengthOf(elem, Attr::Height), m_size.height());
    const QRect area(left, top, right - left, bottom - top);
    const QRect rect = area.intersected(QRect(QPoint(0, 0), m_size));
    if (rect.isEmpty())
        return;
    const std::size_t number = m_regions.size();
    m_regions.push_back({rect, area, textOf(elem, Attr::Fit), backgroundOf(elem), &elem});
    if (!m_byId.contains(id))
        m_byId.insert(id, number);
    if (const QString folded = id.toCaseFolded(); !m_byFoldedId.contains(folded))
        m_byFoldedId.insert(folded, number);
}

const Region *Layout::find(const QString &id) const
{
    if (id.isEmpty())
        return nullptr;
    if (const auto exact = m_byId.constFind(id); exact != m_byId.constEnd())
        return &m_regions[*exact];
    const auto folded = m_byFoldedId.constFind(id.toCaseFolded());
    return folded == m_byFoldedId.constEnd() ? nullptr : &m_regions[*folded];
}

} // namespace VySmilPrivate
