// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_defaults_p.h>
#include <VySmil/message/vysmilmedium.h>

#include <algorithm>
#include <tuple>

namespace {

// \a length times \a numerator by \a denominator, to the nearest, half up.
qint64 scaled(qint64 length, qint64 numerator, qint64 denominator)
{
    return (2 * length * numerator + denominator) / (2 * denominator);
}

QSize withinBounds(qint64 width, qint64 height)
{
    const auto side = [](qint64 length) {
        return static_cast<int>(std::clamp<qint64>(length, 1, VySmilPrivate::maxLength));
    };
    return {side(width), side(height)};
}

} // namespace

QSize VySmilMedium::shownSize(const QSize &natural) const noexcept
{
    if (natural.isEmpty() || area.isEmpty())
        return QSize();
    const QStringView how = QStringView(fit).trimmed();
    if (how == u"fill")
        return withinBounds(area.width(), area.height());
    if (how == u"hidden" || how == u"scroll")
        return withinBounds(natural.width(), natural.height());
    // Which side touches the area: the one that is relatively longer where all is to fit in.
    const bool isWider = qint64(natural.width()) * area.height() > qint64(area.width()) * natural.height();
    if (isWider == (how != u"slice"))
        return withinBounds(area.width(), scaled(natural.height(), area.width(), natural.width()));
    return withinBounds(scaled(natural.width(), area.height(), natural.height()), area.height());
}

bool VySmilMedium::operator==(const VySmilMedium &other) const noexcept
{
    const auto fields = [](const VySmilMedium &medium) {
        return std::tie(medium.kind, medium.src, medium.alt, medium.region, medium.fit, medium.part,
                        medium.rect, medium.area, medium.background, medium.foreground, medium.beginMs,
                        medium.endMs, medium.guesses);
    };
    return fields(*this) == fields(other);
}
