// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/knowntime_p.h>
#include <VySmil/message/layout_p.h>
#include <VySmil/message/mediumkind_p.h>
#include <VySmil/message/partindex_p.h>
#include <VySmil/message/slidewalk_p.h>
#include <VySmil/message/vysmilslideshow.h>
#include <VySmil/model/vysmilelemsmil.h>

#include <algorithm>

namespace {

using VySmilPrivate::KnownTime;

// What is known of the times of a medium before its slide has a duration; in milliseconds.
struct Times
{
    std::optional<double> begin; // nothing where it waits for a medium that ends with the slide
    std::optional<double> end;
};

class Reader
{
public:
    Reader(const VySmilElemSmil &root, const QList<VySmilPart> &partList,
           const VySmilSlideShowOptions &options)
        : parts(partList),
          index(partList),
          layout(root, options.screen),
          defaultDurationMs(options.defaultDurationMs)
    {
    }

    void read(const VySmilElemSmil &root, VySmilSlideShow &show);

private:
    VySmilSlide readSlide(const VySmilPrivate::SlideElements &source);
    VySmilMedium readMedium(const VySmilElemBase &elem);
    void place(VySmilMedium &medium) const;
    Times readTimes(const VySmilPrivate::MediumElement &source, VySmilMedium &medium,
                    const std::vector<Times> &earlier) const;

    const QList<VySmilPart> &parts;
    VySmilPrivate::PartIndex index;
    const VySmilPrivate::Layout layout;
    const qint32 defaultDurationMs;
};

void Reader::read(const VySmilElemSmil &root, VySmilSlideShow &show)
{
    show = VySmilSlideShow();
    show.size = layout.size;
    if (layout.isSizeGuessed)
        show.guesses |= VySmilMedium::GUESS_SIZE;
    std::vector<bool> isUsed(static_cast<std::size_t>(parts.size()));
    for (const VySmilPrivate::SlideElements &source : VySmilPrivate::slidesOf(root)) {
        show.slides.append(readSlide(source));
        for (const VySmilMedium &medium : std::as_const(show.slides.last().media)) {
            if (medium.part >= 0)
                isUsed[static_cast<std::size_t>(medium.part)] = true;
        }
    }
    for (int i = 0; i < parts.size(); ++i) {
        if (!isUsed[static_cast<std::size_t>(i)] && !VySmilPrivate::isSmilPart(parts.at(i)))
            show.unusedParts << i;
    }
}

VySmilSlide Reader::readSlide(const VySmilPrivate::SlideElements &source)
{
    VySmilSlide slide;
    slide.elem = source.elem;
    slide.media.reserve(static_cast<qsizetype>(source.media.size()));
    std::vector<Times> times;
    for (const VySmilPrivate::MediumElement &medium : source.media) {
        slide.media.append(readMedium(*medium.elem));
        times.push_back(readTimes(medium, slide.media.last(), times));
    }
    VySmilPrivate::placeByDefault(slide.media, layout.size);

    const bool isPar = source.elem->getElemType() == QLatin1String("par");
    const KnownTime dur =
        isPar ? VySmilPrivate::knownTime(source.elem->getAttribute(QStringLiteral("dur"))) : KnownTime();
    double duration = dur.isKnown ? dur.ms : 0;
    if (duration <= 0) {
        slide.guesses |= VySmilMedium::GUESS_TIME;
        for (const Times &medium : times)
            duration = std::max(duration, medium.end.value_or(0));
    }
    slide.durationMs = duration > 0 ? VySmilPrivate::saturatedMs(duration) : defaultDurationMs;

    const auto withinSlide = [&slide](const std::optional<double> &ms) {
        return std::min(VySmilPrivate::saturatedMs(ms.value_or(slide.durationMs)), slide.durationMs);
    };
    for (std::size_t i = 0; i < times.size(); ++i) {
        VySmilMedium &medium = slide.media[static_cast<qsizetype>(i)];
        medium.beginMs = withinSlide(times[i].begin);
        medium.endMs = std::max(medium.beginMs, withinSlide(times[i].end));
    }
    return slide;
}

VySmilMedium Reader::readMedium(const VySmilElemBase &elem)
{
    VySmilMedium medium;
    medium.elem = &elem;
    medium.src = elem.getAttribute(QStringLiteral("src"));
    medium.alt = elem.getAttribute(QStringLiteral("alt"));
    medium.region = elem.getAttribute(QStringLiteral("region"));
    medium.part = index.find(medium.src);
    if (medium.part < 0 && !parts.isEmpty() && !medium.src.trimmed().isEmpty())
        medium.guesses |= VySmilMedium::GUESS_PART;
    medium.kind = VySmilPrivate::kindOf(elem, parts, medium.part);
    place(medium);
    return medium;
}

// In the region that the medium names, or else in the one that most messages have for its kind.
void Reader::place(VySmilMedium &medium) const
{
    if (medium.kind == VySmilMedium::MEDIUM_AUDIO)
        return;
    const VySmilPrivate::Area *area = layout.find(medium.region);
    if (!area && medium.kind == VySmilMedium::MEDIUM_OTHER)
        return;
    if (!area) {
        medium.guesses |= VySmilMedium::GUESS_REGION;
        area = layout.find(medium.kind == VySmilMedium::MEDIUM_TEXT ? QStringLiteral("text")
                                                                    : QStringLiteral("image"));
    }
    if (area) {
        medium.rect = area->rect;
        medium.fit = area->fit;
    }
}

Times Reader::readTimes(const VySmilPrivate::MediumElement &source, VySmilMedium &medium,
                        const std::vector<Times> &earlier) const
{
    const KnownTime begin = VySmilPrivate::knownTime(source.elem->getAttribute(QStringLiteral("begin")));
    const KnownTime end = VySmilPrivate::knownTime(source.elem->getAttribute(QStringLiteral("end")));
    const KnownTime dur = VySmilPrivate::knownTime(source.elem->getAttribute(QStringLiteral("dur")));
    const auto isOpen = [](const KnownTime &time) { return time.isThere && !time.isKnown; };
    if (isOpen(begin) || (isOpen(end) && !end.isIndefinite) || (isOpen(dur) && !dur.isIndefinite))
        medium.guesses |= VySmilMedium::GUESS_TIME;

    Times times;
    if (begin.isKnown)
        times.begin = begin.ms;
    else if (source.before < 0)
        times.begin = 0;
    else if (const Times &before = earlier[static_cast<std::size_t>(source.before)]; before.end)
        times.begin = std::max(before.begin.value_or(0), *before.end);
    if (end.isKnown)
        times.end = end.ms;
    if (dur.isKnown && times.begin)
        times.end = std::min(*times.begin + dur.ms, times.end.value_or(*times.begin + dur.ms));
    const qint32 length = VySmilPrivate::knownLength(medium.kind, parts, medium.part);
    if (!times.end && times.begin && length > 0)
        times.end = *times.begin + length;
    return times;
}

} // namespace

int VySmilSlideShow::fromTree(const VySmilElemSmil &root, const QList<VySmilPart> &parts,
                              const VySmilSlideShowOptions &options)
{
    Reader(root, parts, VySmilPrivate::withDefaults(options)).read(root, *this);
    return slides.isEmpty() ? VySmil::RESULT_UNUSABLE : VySmil::RESULT_OK;
}
