// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "slides.h"

namespace {

// The size of a small phone, for a document that names none.
constexpr QSizeF defaultSize(176, 144);

// All elements called name under elem, in document order.
void collect(const VySmilElemBase &elem, const QString &name, QList<const VySmilElemBase *> &found)
{
    for (const VySmilElemBase *child : *elem.getSubElements()) {
        if (child->getElemType() == name)
            found << child;
        collect(*child, name, found);
    }
}

QList<const VySmilElemBase *> allCalled(const VySmilElemBase &root, const char *name)
{
    QList<const VySmilElemBase *> found;
    collect(root, QString::fromLatin1(name), found);
    return found;
}

// The length that an attribute holds in pixels, where whole is 100 percent; nothing if it is absent or does
// not read.
std::optional<double> lengthOf(const VySmilElemBase &elem, const char *name, double whole)
{
    VySmil::VyLength length;
    if (length.fromString(elem.getAttribute(QString::fromLatin1(name))) != VySmil::RESULT_OK)
        return std::nullopt;
    switch (length.unit) {
    case VySmil::UNIT_PIXELS:
        return length.value.pixels;
    case VySmil::UNIT_PERCENT:
        return static_cast<double>(length.value.percent) / 100 * whole;
    default:
        return std::nullopt;
    }
}

Region regionOf(const VySmilElemBase &elem, QSizeF whole)
{
    Region region;
    region.id = elem.getAttribute(QStringLiteral("id"));
    region.fit = elem.getAttribute(QStringLiteral("fit"));
    // Without left and top a region starts in the corner, as SMIL says; without a size it is guessed to fill
    // the rest.
    const double left = lengthOf(elem, "left", whole.width()).value_or(0);
    const double top = lengthOf(elem, "top", whole.height()).value_or(0);
    const auto width = lengthOf(elem, "width", whole.width());
    const auto height = lengthOf(elem, "height", whole.height());
    region.isGuessed = !width || !height;
    region.rect = QRectF(left, top, width.value_or(std::max(0.0, whole.width() - left)),
                         height.value_or(std::max(0.0, whole.height() - top)));
    return region;
}

std::optional<double> milliSecondsOf(const VySmil::VyTimeClock &clock)
{
    switch (clock.clockType) {
    case VySmil::VyTimeClock::CLOCK_TIMECOUNT:
        return clock.timeCount.toMilliSeconds();
    case VySmil::VyTimeClock::CLOCK_FULL:
        return (clock.fullClock.hours * 60.0 + clock.fullClock.minutes) * 60'000 +
               static_cast<double>(clock.fullClock.seconds) * 1'000;
    default:
        return clock.partialClock.minutes * 60'000.0 +
               static_cast<double>(clock.partialClock.seconds) * 1'000;
    }
}

Moment momentOf(const VySmilElemBase &elem, const char *name)
{
    Moment moment;
    moment.text = elem.getAttribute(QString::fromLatin1(name));
    VySmil::VyTime time;
    if (time.fromString(moment.text) != VySmil::RESULT_OK)
        return moment;
    if (time.timeType == VySmil::VyTime::TIME_CLOCK)
        moment.milliSeconds = milliSecondsOf(time.clockTime);
    else if (time.timeType == VySmil::VyTime::TIME_OFFSET && time.offsetTime.positive)
        moment.milliSeconds = milliSecondsOf(time.offsetTime.clock);
    // A time before the beginning has no place on the line, and stays text.
    if (moment.milliSeconds && *moment.milliSeconds < 0)
        moment.milliSeconds.reset();
    return moment;
}

// The region called id in the slide: the document's own, or one that is made up.
int regionIndex(Slide &slide, const QString &id, QSizeF whole)
{
    for (int i = 0; i < slide.regions.size(); ++i) {
        if (slide.regions.at(i).id == id)
            return i;
    }
    Region guessed;
    guessed.id = id;
    guessed.rect = QRectF(QPointF(0, 0), whole);
    guessed.isGuessed = true;
    slide.regions << guessed;
    return static_cast<int>(slide.regions.size()) - 1;
}

} // namespace

Storyboard storyboardOf(const VySmilElemSmil &root)
{
    Storyboard board;
    board.size = defaultSize;
    board.isSizeGuessed = true;
    const auto layouts = allCalled(root, "root-layout");
    if (!layouts.isEmpty()) {
        // A percentage of the root layout is one of a display that we do not know.
        const auto width = lengthOf(*layouts.first(), "width", defaultSize.width());
        const auto height = lengthOf(*layouts.first(), "height", defaultSize.height());
        const bool inPercent = (layouts.first()->getAttribute(QStringLiteral("width")) +
                                layouts.first()->getAttribute(QStringLiteral("height")))
                                   .contains(u'%');
        if (width && height && *width > 0 && *height > 0) {
            board.size = QSizeF(*width, *height);
            board.isSizeGuessed = inPercent;
        }
    }

    QList<Region> regions;
    for (const VySmilElemBase *elem : allCalled(root, "region"))
        regions << regionOf(*elem, board.size);

    for (const VySmilElemBase *par : allCalled(root, "par")) {
        Slide slide;
        slide.dur = momentOf(*par, "dur");
        slide.regions = regions;
        for (const VySmilElemBase *child : *par->getSubElements()) {
            if (!dynamic_cast<const VySmilElemMediaObj *>(child))
                continue;
            Media media;
            media.kind = child->getElemType();
            media.src = child->getAttribute(QStringLiteral("src"));
            if (media.kind != u"audio")
                media.region = regionIndex(slide, child->getAttribute(QStringLiteral("region")), board.size);
            media.begin = momentOf(*child, "begin");
            media.end = momentOf(*child, "end");
            media.dur = momentOf(*child, "dur");
            slide.media << media;
        }
        board.slides << slide;
    }
    return board;
}
