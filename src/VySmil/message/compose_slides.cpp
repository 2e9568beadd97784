// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/compose_references_p.h>
#include <VySmil/message/show_defaults_p.h>
#include <VySmil/message/show_kind_p.h>
#include <VySmil/message/show_place_p.h>
#include <VySmil/message/vysmilslideshow.h>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using VySmilPrivate::Sort;
using VySmilPrivate::Sorts;

// Which of the slides that one slide becomes each medium goes into.
class SlideSplitter
{
public:
    qsizetype slideFor(VySmilMedium::MEDIUM_KIND kind)
    {
        qsizetype slide = 0;
        const Sorts sorts = VySmilPrivate::sortsOf(kind);
        for (std::size_t i = 0; i < m_last.size(); ++i) {
            if (sorts.testFlag(all[i]))
                slide = std::max(slide, m_last[i] + 1);
        }
        for (std::size_t i = 0; i < m_last.size(); ++i) {
            if (sorts.testFlag(all[i]))
                m_last[i] = slide;
        }
        return slide;
    }

private:
    static constexpr std::array<Sort, 3> all{Sort::Picture, Sort::Text, Sort::Sound};
    std::array<qsizetype, 3> m_last{-1, -1, -1}; // the last slide that has one of a sort
};

void appendSplit(QList<VySmilSlide> &slides, const VySmilSlide &slide)
{
    SlideSplitter splitter;
    std::vector<qsizetype> targets;
    qsizetype count = 1;
    for (const VySmilMedium &medium : slide.media) {
        targets.push_back(splitter.slideFor(medium.kind));
        count = std::max(count, targets.back() + 1);
    }
    if (count == 1) {
        slides.append(slide);
        return;
    }
    const qsizetype first = slides.size();
    VySmilSlide empty = slide;
    empty.media.clear();
    empty.durationMs = 0;
    slides.resize(first + count, empty);
    auto target = targets.begin();
    for (VySmilMedium medium : slide.media) {
        const qint32 length = slide.endOf(medium) - std::max(0, medium.beginMs);
        medium.beginMs = 0;
        medium.endMs = length > 0 ? -1 : 0;
        VySmilSlide &part = slides[first + *target++];
        part.durationMs = std::max(part.durationMs, length);
        part.media.append(medium);
    }
    for (qsizetype i = first; i < slides.size(); ++i) {
        if (slides.at(i).durationMs == 0)
            slides[i].durationMs = slide.durationMs;
    }
}

// Until the longest sound or video is over; what is looked at or read stays at least as long as it would
// alone.
void setTimes(VySmilSlide &slide, const QList<VySmilPart> &parts, qint32 defaultDurationMs)
{
    const auto lengthOf = [&parts](const VySmilMedium &medium) {
        return VySmilPrivate::knownLength(medium.kind, parts, medium.part);
    };
    for (const VySmilMedium &medium : std::as_const(slide.media)) {
        const bool needsTime = medium.kind == VySmilMedium::MEDIUM_IMAGE ||
                               medium.kind == VySmilMedium::MEDIUM_TEXT || lengthOf(medium) == 0;
        slide.durationMs = std::max({slide.durationMs, lengthOf(medium), needsTime ? defaultDurationMs : 0});
    }
    for (VySmilMedium &medium : slide.media) {
        const qint32 length = lengthOf(medium);
        if (length > 0 && length < slide.durationMs)
            medium.endMs = length;
    }
}

} // namespace

int VySmilSlideShow::fromParts(const QList<VySmilPart> &parts, const VySmilSlideShowOptions &options)
{
    VySmilSlideShow show;
    show.size = VySmilPrivate::usableSize(options.screen);
    if (options.screen.isEmpty())
        show.guesses = VySmilMedium::GUESSES(VySmilMedium::GUESS_SIZE) | VySmilMedium::GUESS_SCREEN;
    const VySmilPrivate::References references(parts);
    Sorts taken; // those that the last slide has
    for (int i = 0; i < parts.size(); ++i) {
        if (parts.at(i).isSmil())
            continue;
        VySmilMedium medium;
        medium.kind = VySmilPrivate::kindOfPart(parts.at(i)).value_or(VySmilMedium::MEDIUM_OTHER);
        const Sorts sorts = VySmilPrivate::sortsOf(medium.kind);
        if (!sorts) {
            show.unusedParts << i;
            continue;
        }
        medium.part = i;
        medium.src = references.of(i);
        if (show.slides.isEmpty() || (taken & sorts)) {
            show.slides.append(VySmilSlide());
            taken = {};
        }
        taken |= sorts;
        show.slides.last().media.append(medium);
    }
    for (VySmilSlide &slide : show.slides)
        setTimes(slide, parts, VySmilPrivate::usableDuration(options.defaultDurationMs));
    show.layOut();
    *this = show;
    return slides.isEmpty() ? VySmil::RESULT_UNUSABLE : VySmil::RESULT_OK;
}

void VySmilSlideShow::splitSlides()
{
    QList<VySmilSlide> split;
    split.reserve(slides.size());
    for (const VySmilSlide &slide : std::as_const(slides))
        appendSplit(split, slide);
    slides = split;
}

void VySmilSlideShow::layOut()
{
    for (VySmilSlide &slide : slides) {
        for (VySmilMedium &medium : slide.media) {
            medium.rect = medium.area = QRect();
            medium.fit.clear();
            medium.regionElem = nullptr;
        }
    }
    const VySmilPrivate::DefaultPlaces places(slides, VySmilPrivate::usableSize(size));
    for (VySmilSlide &slide : slides) {
        for (VySmilMedium &medium : slide.media)
            places.place(medium);
    }
}
