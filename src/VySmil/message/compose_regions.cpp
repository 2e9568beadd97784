// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/compose_regions_p.h>
#include <VySmil/message/show_kind_p.h>
#include <VySmil/message/show_layout_p.h>
#include <VySmil/message/show_place_p.h>

#include <QHash>

#include <utility>

namespace {

using VySmilPrivate::imageRegion;
using VySmilPrivate::textRegion;

// Where media are shown, and how.
struct Place
{
    QRect rect;
    QString fit;

    bool operator==(const Place &other) const { return rect == other.rect && fit == other.fit; }
};

size_t qHash(const Place &place, size_t seed)
{
    const QRect &rect = place.rect;
    return qHashMulti(seed, rect.x(), rect.y(), rect.width(), rect.height(), place.fit);
}

// The media of one place.
struct Sharers
{
    Place place;
    qsizetype lastSlideWithText = -1;
    qsizetype lastSlideWithPicture = -1;
    bool isShared = false; // by a text and a picture of one slide, so that texts get a region of their own
    int regions[2] = {-1, -1};

    void add(VySmilMedium::MEDIUM_KIND kind, qsizetype slide)
    {
        const VySmilPrivate::Sorts sorts = VySmilPrivate::sortsOf(kind);
        if (sorts.testFlag(VySmilPrivate::Sort::Text))
            lastSlideWithText = slide;
        if (sorts.testFlag(VySmilPrivate::Sort::Picture))
            lastSlideWithPicture = slide;
        isShared = isShared || (lastSlideWithText == slide && lastSlideWithPicture == slide);
    }
};

// A region before it has a name, by the first medium in it.
struct Wish
{
    bool isText;
    QString id; // that the medium brings, if the profile knows it
};

// Gives each region one of the two names that phones know, as far as those go.
class RegionNamer
{
public:
    explicit RegionNamer(std::size_t count) : m_count(count) {}

    QString nameFor(const Wish &wish)
    {
        if (!wish.id.isEmpty() && take(wish.id))
            return wish.id;
        const QLatin1String usual = wish.isText ? textRegion : imageRegion;
        const QLatin1String other = wish.isText ? imageRegion : textRegion;
        if (take(usual))
            return usual;
        if (m_count == 2 && take(other))
            return other;
        return usual + QString::number(++m_numbers[usual == textRegion ? 1 : 0]);
    }

private:
    bool take(const QString &id)
    {
        bool &isTaken = m_isTaken[id == textRegion ? 1 : 0];
        return !std::exchange(isTaken, true);
    }

    const std::size_t m_count;
    bool m_isTaken[2] = {false, false}; // "Image", "Text"
    int m_numbers[2] = {1, 1};          // the last behind each
};

// The least whole percent of \a whole that is rounded to \a edge, if one is.
int leastPercent(int edge, int whole)
{
    return edge <= 0 ? 0 : (200 * edge - 100 + 2 * whole - 1) / (2 * whole);
}

// From and size in percent, from which reading finds the edges again.
std::optional<std::pair<int, int>> spanInPercent(VySmilPrivate::Edges edges, int whole)
{
    const auto percent = [](int number) {
        VySmil::VyLength length;
        length.unit = VySmil::UNIT_PERCENT;
        length.value.percent = static_cast<float>(number);
        return length;
    };
    const int from = leastPercent(edges.first, whole);
    const int size = leastPercent(edges.second, whole) - from;
    const auto found = VySmilPrivate::edgesOf(percent(from), percent(size), whole);
    if (found.first != edges.first || found.second != edges.second)
        return std::nullopt;
    return std::pair(from, size);
}

// The places of all media, and who shares them.
class Places
{
public:
    Places(const QList<VySmilSlide> &slides, QSize size);

    // Of the next medium of all slides, in their order; null where it is not seen.
    Sharers *next()
    {
        const int place = m_placeOfMedia[m_next++];
        return place < 0 ? nullptr : &m_sharers[static_cast<std::size_t>(place)];
    }

private:
    int numberOf(Place place);

    std::vector<Sharers> m_sharers;
    QHash<Place, int> m_numbers;
    std::vector<int> m_placeOfMedia; // -1: none
    std::size_t m_next = 0;
};

Places::Places(const QList<VySmilSlide> &slides, QSize size)
{
    const QRect all(QPoint(0, 0), size);
    const VySmilPrivate::DefaultPlaces defaults(slides, size);
    for (qsizetype i = 0; i < slides.size(); ++i) {
        for (const VySmilMedium &medium : slides.at(i).media) {
            QRect rect = medium.rect.isEmpty() ? QRect() : medium.rect.intersected(all);
            if (rect.isEmpty())
                rect = defaults.of(medium.kind);
            const bool isSeen = !rect.isNull() && medium.kind != VySmilMedium::MEDIUM_AUDIO;
            m_placeOfMedia.push_back(isSeen ? numberOf({rect, medium.fit.trimmed()}) : -1);
            if (isSeen)
                m_sharers[static_cast<std::size_t>(m_placeOfMedia.back())].add(medium.kind, i);
        }
    }
}

int Places::numberOf(Place place)
{
    if (!VySmilPrivate::isFit(place.fit))
        place.fit.clear();
    const auto known = m_numbers.constFind(place);
    if (known != m_numbers.constEnd())
        return *known;
    const int number = static_cast<int>(m_sharers.size());
    m_sharers.push_back({place});
    m_numbers.insert(place, number);
    return number;
}

} // namespace

namespace VySmilPrivate {

RegionPlan::RegionPlan(const QList<VySmilSlide> &slides, QSize size)
{
    Places places(slides, size);
    std::vector<Wish> wishes;
    for (const VySmilSlide &slide : slides) {
        for (const VySmilMedium &medium : slide.media) {
            Sharers *const sharers = places.next();
            if (!sharers) {
                m_regionOfMedia.push_back(-1);
                continue;
            }
            const bool isText = medium.kind == VySmilMedium::MEDIUM_TEXT;
            int &region = sharers->regions[sharers->isShared && isText ? 1 : 0];
            if (region < 0) {
                region = static_cast<int>(m_regions.size());
                m_regions.push_back({QString(), sharers->place.rect, sharers->place.fit});
                const bool mayKeepName = !medium.guesses.testFlag(VySmilMedium::GUESS_REGION) &&
                                         (medium.region == imageRegion || medium.region == textRegion);
                wishes.push_back({isText, mayKeepName ? medium.region : QString()});
            }
            m_regionOfMedia.push_back(region);
        }
    }
    RegionNamer namer(wishes.size());
    for (std::size_t i = 0; i < wishes.size(); ++i)
        m_regions[i].id = namer.nameFor(wishes[i]);
}

QString RegionPlan::nextId()
{
    const int region = m_regionOfMedia[m_next++];
    return region < 0 ? QString() : m_regions[static_cast<std::size_t>(region)].id;
}

std::optional<QRect> inPercent(const QRect &rect, QSize size)
{
    const auto across = spanInPercent({rect.left(), rect.left() + rect.width()}, size.width());
    const auto down = spanInPercent({rect.top(), rect.top() + rect.height()}, size.height());
    if (!across || !down)
        return std::nullopt;
    return QRect(across->first, down->first, across->second, down->second);
}

} // namespace VySmilPrivate
