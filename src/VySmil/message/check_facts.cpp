// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/check_facts_p.h>
#include <VySmil/message/show_defaults_p.h>
#include <VySmil/message/show_layout_p.h>
#include <VySmil/message/show_treewalk_p.h>
#include <VySmil/model/vysmilelemsmil.h>

#include <algorithm>

namespace {

using VySmilPrivate::Attr;
using VySmilPrivate::Elem;
using VySmilPrivate::MediumKind;

bool isMedium(const VySmilElemBase &elem)
{
    return VySmilPrivate::mediumKindOf(VySmilPrivate::elemOf(elem)) != MediumKind::None;
}

std::optional<int> pixelsAboveZero(const VySmilElemBase *rootLayout, Attr side)
{
    const auto length = rootLayout ? VySmilPrivate::lengthOf(*rootLayout, side) : std::nullopt;
    if (!length || length->unit != VySmil::UNIT_PIXELS || length->value.pixels <= 0)
        return std::nullopt;
    return VySmilPrivate::rounded(VySmilPrivate::pixelsOf(*length, 0));
}

QSet<const VySmilElemBase *> parsWithMedia(const VySmilElemBase &root)
{
    QSet<const VySmilElemBase *> found;
    int media = 0;
    std::vector<std::pair<const VySmilElemBase *, int>> open; // pars with the number of media before them
    const auto enter = [&](const VySmilElemBase &elem, const VySmilElemBase *) {
        if (VySmilPrivate::elemOf(elem) == Elem::Par)
            open.emplace_back(&elem, media);
        else if (isMedium(elem))
            ++media;
    };
    const auto leave = [&](const VySmilElemBase &elem) {
        if (open.empty() || open.back().first != &elem)
            return;
        if (open.back().second < media)
            found.insert(&elem);
        open.pop_back();
    };
    VySmilPrivate::walkTree(root, enter, leave);
    return found;
}

} // namespace

namespace VySmilPrivate {

DocumentFacts::DocumentFacts(const VySmilElemSmil &root, const QList<VySmilPart> &parts)
    : m_root(root),
      m_document(elementsOf(root)),
      m_parts(parts),
      m_index(parts),
      m_rootWidth(pixelsAboveZero(m_document.rootLayout, Attr::Width)),
      m_rootHeight(pixelsAboveZero(m_document.rootLayout, Attr::Height))
{
    for (const VySmilElemBase *region : m_document.regions) {
        const QString id = textOf(*region, Attr::Id);
        if (!id.isEmpty() && !m_regions.contains(id))
            m_regions.insert(id, region);
    }
}

bool DocumentFacts::holdsMedia(const VySmilElemBase &par) const
{
    const VySmilElemList &children = *par.getSubElements();
    if (std::any_of(children.begin(), children.end(),
                    [](const VySmilElemBase *child) { return isMedium(*child); }))
        return true;
    if (children.isEmpty())
        return false;
    if (!m_parsWithMedia)
        m_parsWithMedia = parsWithMedia(m_root);
    return m_parsWithMedia->contains(&par);
}

void SlideFacts::enter(const VySmilElemBase &elem)
{
    const std::vector<SlideElements> &slides = m_document.slides();
    if (m_nextSlide < slides.size() && slides[m_nextSlide].elem == &elem)
        readSlide(slides[m_nextSlide++]);
}

MediumFacts SlideFacts::medium(const VySmilElemBase &elem, Elem name)
{
    if (m_nextMedium < m_media.size() && m_media[m_nextMedium].elem == &elem)
        return std::move(m_media[m_nextMedium++]);
    return loneMedium(elem, name);
}

MediumFacts SlideFacts::loneMedium(const VySmilElemBase &elem, Elem name) const
{
    MediumFacts medium{&elem, name, textOf(elem, Attr::Src).trimmed(), textOf(elem, Attr::Region), {}, {},
                       {},    {}};
    medium.match = m_document.index().find(medium.src);
    if (medium.match.part >= 0)
        medium.kindOfPart = kindOfPart(m_document.parts().at(medium.match.part));
    medium.kind = medium.kindOfPart.value_or(kindOfElement(name).value_or(VySmilMedium::MEDIUM_OTHER));
    return medium;
}

void SlideFacts::readSlide(const SlideElements &slide)
{
    m_media.clear();
    m_nextMedium = 0;
    std::vector<qint32> lengths;
    Sorts sorts;
    for (const SlideStep &step : slide.steps) {
        if (step.kind != SlideStep::Kind::Medium)
            continue;
        MediumFacts medium = loneMedium(*step.elem, elemOf(*step.elem));
        lengths.push_back(knownLength(medium.kind, m_document.parts(), medium.match.part));
        MediumInSlide &inSlide = medium.inSlide.emplace();
        inSlide.sortsTaken = sorts & sortsOf(medium.kind);
        sorts |= sortsOf(medium.kind);
        if (isVisual(medium.kind) && !medium.region.isEmpty() && takes(medium.name, Attr::Region)) {
            std::size_t &lastSlide = m_slideOfRegion[medium.region];
            inSlide.isRegionTaken = lastSlide == m_nextSlide;
            lastSlide = m_nextSlide;
        }
        m_media.push_back(std::move(medium));
    }
    const SlideTimes times = timesOf(slide, lengths, usableDuration(0));
    for (std::size_t i = 0; i < m_media.size(); ++i) {
        m_media[i].inSlide->times = times.media[i];
        if (!times.isGuessed)
            m_media[i].inSlide->slideDurationMs = times.durationMs;
    }
}

} // namespace VySmilPrivate
