// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/check_subjects_p.h>

#include <algorithm>

namespace {

using VySmilPrivate::Attr;
using VySmilPrivate::DocumentFacts;
using VySmilPrivate::Found;
using VySmilPrivate::MediumFacts;
using VySmilPrivate::Report;
using VySmilPrivate::Sort;

// The gravest first.
std::optional<Found> faultOfSource(const MediumFacts &medium, const DocumentFacts &document)
{
    const bool hasParts = !document.parts().isEmpty();
    if (medium.src.isEmpty())
        return Found::SourceMissing;
    if (hasParts && medium.match.part < 0)
        return Found::NoPart;
    if (std::any_of(medium.src.begin(), medium.src.end(), [](QChar c) { return c > u'\x7F'; }))
        return Found::NotAscii;
    if (!VySmilPrivate::isPrintableAscii(medium.src))
        return Found::BlankInSource;
    if (hasParts && !medium.match.isAlone)
        return Found::SeveralParts;
    const auto byElement = VySmilPrivate::kindOfElement(medium.name);
    if (medium.kindOfPart && byElement != VySmilMedium::MEDIUM_OTHER && byElement != medium.kindOfPart)
        return Found::OtherKindOfPart;
    return std::nullopt;
}

void checkRegionName(const MediumFacts &medium, const DocumentFacts &document, Report &report)
{
    const bool hasPlace =
        VySmilPrivate::isVisual(medium.kind) && VySmilPrivate::takes(medium.name, Attr::Region);
    // A message without any region is shown as each phone likes best.
    if (!hasPlace || (!report.isStrict() && !document.hasRegions()))
        return;
    if (medium.region.isEmpty())
        report.add(Found::RegionMissing, Attr::Region);
    else if (!document.regionOf(medium.region))
        report.add(Found::RegionUndeclared, Attr::Region, medium.region);
}

// What the media of a slide share.
void checkSharing(const MediumFacts &medium, Report &report)
{
    const VySmilPrivate::Sorts taken = medium.inSlide->sortsTaken;
    if (taken) {
        report.add(Found::SecondOfItsSort, taken.testFlag(Sort::Picture) ? u"picture"
                                           : taken.testFlag(Sort::Text)  ? u"text"
                                                                         : u"sound");
    }
    if (medium.inSlide->isRegionTaken)
        report.add(Found::RegionTaken, Attr::Region, medium.region);
}

void checkPresence(const VySmilPrivate::MediumInSlide &inSlide, Report &report)
{
    const VySmilPrivate::MediumTimes &times = inSlide.times;
    if (times.isGuessed)
        return;
    if (inSlide.slideDurationMs && times.begin >= *inSlide.slideDurationMs)
        report.add(Found::BehindItsSlide);
    else if (times.end && *times.end <= times.begin)
        report.add(Found::OverAtOnce);
}

} // namespace

void VySmilPrivate::checkMedium(const MediumFacts &medium, const DocumentFacts &document, Report &report)
{
    if (const auto fault = faultOfSource(medium, document))
        report.add(*fault, Attr::Src, medium.src);
    checkRegionName(medium, document, report);
    if (!medium.inSlide)
        return;
    checkSharing(medium, report);
    checkPresence(*medium.inSlide, report);
}
