// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_color_p.h>
#include <VySmil/message/show_defaults_p.h>
#include <VySmil/message/show_kind_p.h>
#include <VySmil/message/show_layout_p.h>
#include <VySmil/message/show_partindex_p.h>
#include <VySmil/message/show_place_p.h>
#include <VySmil/message/show_slidetimes_p.h>
#include <VySmil/message/show_time_p.h>
#include <VySmil/message/vysmilslideshow.h>
#include <VySmil/model/vysmilelemsmil.h>

#include <algorithm>
#include <utility>

namespace {

using VySmilPrivate::Attr;
using VySmilPrivate::textOf;

class ShowReader
{
public:
    ShowReader(const VySmilElemSmil &root, const QList<VySmilPart> &parts,
               const VySmilSlideShowOptions &options)
        : m_document(VySmilPrivate::elementsOf(root)),
          m_layout(m_document, VySmilPrivate::usableSize(options.screen)),
          m_defaultDurationMs(VySmilPrivate::usableDuration(options.defaultDurationMs)),
          m_parts(parts),
          m_index(parts)
    {
    }

    VySmilSlideShow read() const;

private:
    VySmilSlide readSlide(const VySmilPrivate::SlideElements &source) const;
    VySmilMedium readMedium(const VySmilElemBase &elem) const;
    void place(VySmilMedium &medium) const;
    QList<int> partsBut(const QList<VySmilSlide> &slides) const;

    const VySmilPrivate::DocumentElements m_document;
    const VySmilPrivate::Layout m_layout;
    const qint32 m_defaultDurationMs;
    const QList<VySmilPart> &m_parts;
    const VySmilPrivate::PartIndex m_index;
};

VySmilSlideShow ShowReader::read() const
{
    VySmilSlideShow show;
    show.size = m_layout.size();
    show.guesses = m_layout.guesses();
    if (m_document.rootLayout)
        show.background = VySmilPrivate::backgroundOf(*m_document.rootLayout);
    show.slides.reserve(static_cast<qsizetype>(m_document.slides.size()));
    for (const VySmilPrivate::SlideElements &source : m_document.slides)
        show.slides.append(readSlide(source));
    const VySmilPrivate::DefaultPlaces places(show.slides, show.size);
    for (VySmilSlide &slide : show.slides) {
        for (VySmilMedium &medium : slide.media) {
            if (medium.rect.isNull())
                places.place(medium);
        }
    }
    show.unusedParts = partsBut(show.slides);
    return show;
}

VySmilSlide ShowReader::readSlide(const VySmilPrivate::SlideElements &source) const
{
    VySmilSlide slide;
    slide.elem = source.elem;
    slide.media.reserve(static_cast<qsizetype>(source.steps.size()));
    std::vector<qint32> lengths;
    for (const VySmilPrivate::SlideStep &step : source.steps) {
        if (step.kind != VySmilPrivate::SlideStep::Kind::Medium)
            continue;
        slide.media.append(readMedium(*step.elem));
        const VySmilMedium &medium = slide.media.constLast();
        lengths.push_back(VySmilPrivate::knownLength(medium.kind, m_parts, medium.part));
    }
    const VySmilPrivate::SlideTimes times = VySmilPrivate::timesOf(source, lengths, m_defaultDurationMs);
    slide.durationMs = times.durationMs;
    slide.guesses.setFlag(VySmilMedium::GUESS_TIME, times.isGuessed);
    const auto withinSlide = [&slide](qint64 ms) {
        return static_cast<qint32>(std::min<qint64>(ms, slide.durationMs));
    };
    auto medium = slide.media.begin();
    for (const VySmilPrivate::MediumTimes &found : times.media) {
        medium->beginMs = withinSlide(found.begin);
        if (found.end && *found.end < slide.durationMs)
            medium->endMs = withinSlide(*found.end);
        medium->guesses.setFlag(VySmilMedium::GUESS_TIME, found.isGuessed);
        ++medium;
    }
    return slide;
}

VySmilMedium ShowReader::readMedium(const VySmilElemBase &elem) const
{
    VySmilMedium medium;
    medium.elem = &elem;
    medium.src = textOf(elem, Attr::Src);
    medium.alt = textOf(elem, Attr::Alt);
    medium.region = textOf(elem, Attr::Region);
    medium.part = m_index.find(medium.src).part;
    if (medium.part < 0 && !m_parts.isEmpty() && !medium.src.isEmpty())
        medium.guesses |= VySmilMedium::GUESS_PART;
    medium.kind = VySmilPrivate::kindOf(VySmilPrivate::elemOf(elem), m_parts, medium.part);
    if (medium.kind == VySmilMedium::MEDIUM_TEXT)
        medium.foreground = VySmilPrivate::foregroundOf(elem);
    place(medium);
    return medium;
}

// In the region that the medium names, or else in the one that most messages have for its kind.
void ShowReader::place(VySmilMedium &medium) const
{
    if (medium.kind == VySmilMedium::MEDIUM_AUDIO)
        return;
    const VySmilPrivate::Region *region = m_layout.find(medium.region);
    if (!region && medium.kind != VySmilMedium::MEDIUM_OTHER) {
        medium.guesses |= VySmilMedium::GUESS_REGION;
        region = m_layout.find(medium.kind == VySmilMedium::MEDIUM_TEXT ? VySmilPrivate::textRegion
                                                                        : VySmilPrivate::imageRegion);
    }
    if (!region)
        return;
    medium.rect = region->rect;
    medium.area = region->area;
    medium.fit = region->fit;
    medium.background = region->background;
    medium.regionElem = region->elem;
}

QList<int> ShowReader::partsBut(const QList<VySmilSlide> &slides) const
{
    std::vector<bool> isUsed(static_cast<std::size_t>(m_parts.size()));
    for (const VySmilSlide &slide : slides) {
        for (const VySmilMedium &medium : slide.media) {
            if (medium.part >= 0)
                isUsed[static_cast<std::size_t>(medium.part)] = true;
        }
    }
    QList<int> unused;
    for (int i = 0; i < m_parts.size(); ++i) {
        if (!isUsed[static_cast<std::size_t>(i)] && !m_parts.at(i).isSmil())
            unused << i;
    }
    return unused;
}

} // namespace

int VySmilSlideShow::fromTree(const VySmilElemSmil &root, const QList<VySmilPart> &parts,
                              const VySmilSlideShowOptions &options)
{
    *this = ShowReader(root, parts, options).read();
    return slides.isEmpty() ? VySmil::RESULT_UNUSABLE : VySmil::RESULT_OK;
}

bool VySmilSlideShow::operator==(const VySmilSlideShow &other) const noexcept
{
    return size == other.size && slides == other.slides && unusedParts == other.unusedParts &&
           background == other.background && guesses == other.guesses;
}

bool VySmilSlideShowOptions::operator==(const VySmilSlideShowOptions &other) const noexcept
{
    return screen == other.screen && defaultDurationMs == other.defaultDurationMs;
}
