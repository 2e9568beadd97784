// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/check_subjects_p.h>
#include <VySmil/message/check_text_p.h>
#include <VySmil/message/show_layout_p.h>

namespace {

using VySmilPrivate::Attr;
using VySmilPrivate::Found;
using VySmilPrivate::imageRegion;
using VySmilPrivate::Report;
using VySmilPrivate::textRegion;
using Length = std::optional<VySmil::VyLength>;

bool isIn(const Length &length, VySmil::UNIT_KIND unit)
{
    return length && length->unit == unit;
}

// Pixels or percent; 0 has no unit.
bool hasUnit(const Length &length, VySmil::UNIT_KIND unit)
{
    return isIn(length, unit) && VySmilPrivate::pixelsOf(*length, 100) != 0;
}

void checkId(const VySmilElemBase &region, const VySmilPrivate::DocumentFacts &document, Report &report)
{
    const QString id = VySmilPrivate::textOf(region, Attr::Id);
    if (id.isEmpty())
        report.add(Found::RegionIdMissing, Attr::Id);
    else if (document.regionOf(id) != &region)
        report.add(Found::RegionIdTaken, Attr::Id, id);
    else if (id != imageRegion && id != textRegion)
        report.add(Found::RegionIdUnusual, Attr::Id, id);
}

// What is wrong with the place of a region in one direction, of which the root layout has \a whole pixels.
std::optional<Found> faultInPixels(const Length &from, const Length &size, int whole)
{
    const auto [first, second] = VySmilPrivate::edgesOf(from, size, whole);
    if (!size && first >= second)
        return Found::NoSize;
    if (first < 0 || first > whole || second > whole)
        return Found::OutsideOfRoot;
    return second > first ? std::nullopt : std::optional(Found::NoSize);
}

// The same where nobody knows the pixels of the root layout: then those of the region may be anything.
std::optional<Found> faultInPercent(Length from, const Length &size)
{
    if (!isIn(from, VySmil::UNIT_PERCENT) && !isIn(size, VySmil::UNIT_PERCENT))
        return std::nullopt;
    if (isIn(from, VySmil::UNIT_PIXELS))
        from.reset();
    if (!isIn(size, VySmil::UNIT_PIXELS))
        return faultInPixels(from, size, 100);
    const int first = VySmilPrivate::edgesOf(from, {}, 100).first;
    return first < 0 || first > 100 ? std::optional(Found::OutsideOfRoot) : std::nullopt;
}

std::optional<Found> faultOfPlace(const Length &from, const Length &size, const std::optional<int> &whole)
{
    if (size && VySmilPrivate::pixelsOf(*size, 100) <= 0)
        return Found::NoSize;
    return whole ? faultInPixels(from, size, *whole) : faultInPercent(from, size);
}

} // namespace

namespace VySmilPrivate {

void checkLength(Attr attr, const QString &text, Report &report)
{
    VySmil::VyLength length;
    if (length.fromString(text) != VySmil::RESULT_OK)
        report.add(Found::NoLength, attr, text);
    else if (!isDigits(text) && !isDigitsBefore(text, u"px") && !isDigitsBefore(text, u"%"))
        report.add(Found::FormOfLength, attr, text);
}

void checkRootLayout(const VySmilElemBase &rootLayout, Report &report)
{
    const auto isInPercent = [&rootLayout](Attr side) {
        return hasUnit(lengthOf(rootLayout, side), VySmil::UNIT_PERCENT);
    };
    if (isInPercent(Attr::Width) || isInPercent(Attr::Height))
        report.add(Found::RootInPercent);
}

void checkRegion(const VySmilElemBase &region, const DocumentFacts &document, Report &report)
{
    checkId(region, document, report);

    const Length left = lengthOf(region, Attr::Left);
    const Length top = lengthOf(region, Attr::Top);
    const Length width = lengthOf(region, Attr::Width);
    const Length height = lengthOf(region, Attr::Height);
    const auto isAnyIn = [&](VySmil::UNIT_KIND unit) {
        return hasUnit(left, unit) || hasUnit(top, unit) || hasUnit(width, unit) || hasUnit(height, unit);
    };
    if (isAnyIn(VySmil::UNIT_PIXELS) && isAnyIn(VySmil::UNIT_PERCENT))
        report.add(Found::UnitsMixed);

    auto fault = faultOfPlace(left, width, document.rootWidth());
    if (!fault)
        fault = faultOfPlace(top, height, document.rootHeight());
    if (fault)
        report.add(*fault);

    const QString fit = textOf(region, Attr::Fit).trimmed();
    if (!fit.isEmpty() && !isFit(fit))
        report.add(Found::UnknownFit, Attr::Fit, fit);
}

} // namespace VySmilPrivate
