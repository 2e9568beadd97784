// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/show_slidetimes_p.h>
#include <VySmil/message/show_time_p.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelembase.h>

#include <algorithm>

namespace {

using VySmilPrivate::Attr;
using VySmilPrivate::KnownTime;
using VySmilPrivate::MediumTimes;

KnownTime timeOf(const VySmilElemBase &elem, Attr attr)
{
    return VySmilPrivate::knownTime(elem.getAttribute(VySmilPrivate::nameOf(attr)));
}

// The slide, or a container in it. Times count from the start of the slide.
struct Container
{
    bool isSequence = false;
    bool waits = false;              // for something whose end nobody knows, and so does all in it
    qint64 begin = 0;                // of itself
    qint64 base = 0;                 // of what comes next in it
    bool isBaseKnown = true;         // or else what comes next waits
    std::optional<qint64> duration;  // its "dur", if that is known and above 0
    std::optional<qint64> limit;     // where it, or one around it, cuts what is in it
    std::optional<qint64> latestEnd; // the latest known end of what is in it
};

qint64 cut(qint64 ms, const std::optional<qint64> &limit)
{
    return limit ? std::min(ms, *limit) : ms;
}

class SlideClock
{
public:
    std::vector<MediumTimes> media;

    void readMedium(const VySmilElemBase &elem, qint32 length);
    void enterContainer(const VySmilElemBase &elem, bool isSequence);
    void leaveContainer();

private:
    void follow(qint64 begin, const std::optional<qint64> &end);

    std::vector<Container> m_open{Container()};
};

void SlideClock::readMedium(const VySmilElemBase &elem, qint32 length)
{
    const Container &in = m_open.back();
    const KnownTime begin = timeOf(elem, Attr::Begin);
    const KnownTime end = timeOf(elem, Attr::End);
    const KnownTime dur = timeOf(elem, Attr::Dur);
    const auto isOpen = [](const KnownTime &time) { return time.isThere && !time.isKnown; };

    MediumTimes times;
    times.isGuessed = in.waits || !in.isBaseKnown || isOpen(begin) || (isOpen(end) && !end.isIndefinite) ||
                      (isOpen(dur) && !dur.isIndefinite);
    const qint64 start = in.base + (begin.isKnown ? begin.ms : 0);
    if (end.isKnown)
        times.end = in.base + end.ms;
    if (dur.isKnown)
        times.end = std::min(start + dur.ms, times.end.value_or(start + dur.ms));
    if (!times.end && length > 0)
        times.end = start + length;
    times.begin = cut(start, in.limit);
    if (times.end)
        times.end = std::max(times.begin, cut(*times.end, in.limit));
    follow(times.begin, times.end);
    if (!times.end)
        times.end = in.limit;
    media.push_back(times);
}

// What comes behind something in a "seq" begins where that ends.
void SlideClock::follow(qint64 begin, const std::optional<qint64> &end)
{
    Container &in = m_open.back();
    if (end)
        in.latestEnd = std::max(in.latestEnd.value_or(0), *end);
    if (!in.isSequence)
        return;
    in.base = end.value_or(begin);
    in.isBaseKnown = end.has_value();
}

void SlideClock::enterContainer(const VySmilElemBase &elem, bool isSequence)
{
    const Container &in = m_open.back();
    const KnownTime begin = timeOf(elem, Attr::Begin);
    const KnownTime dur = timeOf(elem, Attr::Dur);
    Container inner;
    inner.isSequence = isSequence;
    inner.waits = in.waits || !in.isBaseKnown;
    inner.begin = cut(in.base + (begin.isKnown ? begin.ms : 0), in.limit);
    inner.base = inner.begin;
    inner.limit = in.limit;
    if (dur.isKnown && dur.ms > 0) {
        inner.duration = dur.ms;
        inner.limit = cut(inner.begin + dur.ms, in.limit);
    }
    m_open.push_back(inner);
}

void SlideClock::leaveContainer()
{
    const Container left = m_open.back();
    m_open.pop_back();
    if (left.duration)
        follow(left.begin, left.limit);
    else
        follow(left.begin, left.latestEnd);
}

// How long a slide lasts that does not say it itself; 0 where nothing in it says it either.
qint64 durationOf(const std::vector<MediumTimes> &media, qint32 defaultDurationMs)
{
    std::optional<qint64> latestEnd;
    std::optional<qint64> latestOpenBegin;
    for (const MediumTimes &times : media) {
        std::optional<qint64> &latest = times.end ? latestEnd : latestOpenBegin;
        const qint64 ms = times.end.value_or(times.begin);
        latest = std::max(latest.value_or(ms), ms);
    }
    if (latestOpenBegin && latestOpenBegin >= latestEnd)
        return *latestOpenBegin + defaultDurationMs;
    return latestEnd.value_or(0);
}

} // namespace

VySmilPrivate::SlideTimes VySmilPrivate::timesOf(const SlideElements &slide,
                                                 const std::vector<qint32> &lengths, qint32 defaultDurationMs)
{
    SlideClock clock;
    for (const SlideStep &step : slide.steps) {
        switch (step.kind) {
        case SlideStep::Kind::Medium:
            clock.readMedium(*step.elem, lengths[clock.media.size()]);
            break;
        case SlideStep::Kind::Par:
        case SlideStep::Kind::Sequence:
            clock.enterContainer(*step.elem, step.kind == SlideStep::Kind::Sequence);
            break;
        case SlideStep::Kind::End:
            clock.leaveContainer();
            break;
        }
    }
    SlideTimes times;
    times.media = std::move(clock.media);
    const KnownTime dur = slide.isPar ? timeOf(*slide.elem, Attr::Dur) : KnownTime();
    times.isGuessed = !dur.isKnown || dur.ms <= 0;
    const qint64 found = times.isGuessed ? durationOf(times.media, defaultDurationMs) : dur.ms;
    times.durationMs = found > 0 ? saturatedMs(static_cast<double>(found)) : defaultDurationMs;
    return times;
}
