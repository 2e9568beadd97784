// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/layout_p.h>
#include <VySmil/message/treewalk_p.h>

#include <algorithm>
#include <cmath>

namespace {

// In pixels, where whole is 100 percent.
std::optional<double> pixels(const VySmilElemBase &elem, const QString &name, int whole)
{
    const auto length = VySmilPrivate::readLength(elem, name);
    if (!length)
        return std::nullopt;
    return std::clamp<double>(VySmilPrivate::numberOf(*length, whole), -VySmilPrivate::maxLength,
                              VySmilPrivate::maxLength);
}

// Whether a medium has a place even where no region gives it one.
bool isPlaced(const VySmilMedium &medium)
{
    return medium.kind != VySmilMedium::MEDIUM_AUDIO && medium.kind != VySmilMedium::MEDIUM_OTHER;
}

} // namespace

namespace VySmilPrivate {

int rounded(double number)
{
    return static_cast<int>(std::floor(number + 0.5));
}

double numberOf(const VySmil::VyLength &length, double hundredPercent)
{
    return length.unit == VySmil::UNIT_PIXELS
               ? length.value.pixels
               : static_cast<double>(length.value.percent) * hundredPercent / 100;
}

std::optional<VySmil::VyLength> readLength(const VySmilElemBase &elem, const QString &name)
{
    VySmil::VyLength length;
    if (length.fromString(elem.getAttribute(name)) != VySmil::RESULT_OK || length.unit == VySmil::UNIT_NONE)
        return std::nullopt;
    return length;
}

void placeByDefault(QList<VySmilMedium> &media, QSize size)
{
    bool hasText = false;
    bool hasOther = false;
    for (const VySmilMedium &medium : std::as_const(media)) {
        const bool isText = medium.kind == VySmilMedium::MEDIUM_TEXT;
        hasText = hasText || isText;
        hasOther = hasOther || (!isText && (isPlaced(medium) || !medium.rect.isNull()));
    }
    const QRect all(QPoint(0, 0), size);
    QRect upper = all;
    upper.setHeight(rounded(size.height() * 4 / 5.0));
    QRect lower = all;
    lower.setTop(upper.height());
    const bool isShared = hasText && hasOther && !upper.isEmpty() && !lower.isEmpty();
    for (VySmilMedium &medium : media) {
        if (!isPlaced(medium) || !medium.rect.isNull())
            continue;
        medium.rect = !isShared ? all : medium.kind == VySmilMedium::MEDIUM_TEXT ? lower : upper;
    }
}

VySmilSlideShowOptions withDefaults(VySmilSlideShowOptions options)
{
    const VySmilSlideShowOptions defaults;
    const auto length = [](int given, int otherwise) {
        return given > 0 ? std::min(given, maxLength) : otherwise;
    };
    options.screen = QSize(length(options.screen.width(), defaults.screen.width()),
                           length(options.screen.height(), defaults.screen.height()));
    if (options.defaultDurationMs <= 0)
        options.defaultDurationMs = defaults.defaultDurationMs;
    return options;
}

Layout::Layout(const VySmilElemBase &root, QSize screen) : size(screen)
{
    const VySmilElemBase *rootLayout = nullptr;
    std::vector<const VySmilElemBase *> regions;
    const auto enter = [&](const VySmilElemBase &elem, const VySmilElemBase *) {
        const QString type = elem.getElemType();
        if (type == QLatin1String("region"))
            regions.push_back(&elem);
        else if (type == QLatin1String("root-layout") && !rootLayout)
            rootLayout = &elem;
        return true;
    };
    walkTree(root, enter, [](const VySmilElemBase &) {});

    const auto given = [rootLayout](const QString &name, int ofScreen) {
        const auto length = rootLayout ? pixels(*rootLayout, name, ofScreen) : std::nullopt;
        return length ? rounded(*length) : 0;
    };
    const QSize found(given(QStringLiteral("width"), screen.width()),
                      given(QStringLiteral("height"), screen.height()));
    if (found.width() > 0)
        size.setWidth(found.width());
    if (found.height() > 0)
        size.setHeight(found.height());
    isSizeGuessed = found.width() <= 0 || found.height() <= 0;

    for (const VySmilElemBase *region : regions)
        addRegion(*region);
}

const Area *Layout::find(const QString &id) const
{
    if (const auto exact = areas.constFind(id); exact != areas.constEnd())
        return &*exact;
    const auto folded = areasByFoldedId.constFind(id.toCaseFolded());
    return folded == areasByFoldedId.constEnd() ? nullptr : &*folded;
}

void Layout::addRegion(const VySmilElemBase &elem)
{
    const QString id = elem.getAttribute(QStringLiteral("id"));
    if (id.isEmpty())
        return;
    // An edge, and the one behind it: that of the root where there is no length between them.
    const auto edges = [&elem](const QString &from, const QString &length, int whole) {
        const double first = pixels(elem, from, whole).value_or(0);
        const auto between = pixels(elem, length, whole);
        return std::pair(rounded(first), between && *between > 0 ? rounded(first + *between) : whole);
    };
    const auto [left, right] = edges(QStringLiteral("left"), QStringLiteral("width"), size.width());
    const auto [top, bottom] = edges(QStringLiteral("top"), QStringLiteral("height"), size.height());
    const QRect rect = QRect(left, top, right - left, bottom - top).intersected(QRect(QPoint(0, 0), size));
    if (rect.isEmpty())
        return;
    const Area area{rect, elem.getAttribute(QStringLiteral("fit"))};
    if (!areas.contains(id))
        areas.insert(id, area);
    if (const QString folded = id.toCaseFolded(); !areasByFoldedId.contains(folded))
        areasByFoldedId.insert(folded, area);
}

} // namespace VySmilPrivate
