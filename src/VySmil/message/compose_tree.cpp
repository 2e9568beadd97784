// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/compose_references_p.h>
#include <VySmil/message/compose_regions_p.h>
#include <VySmil/message/show_defaults_p.h>
#include <VySmil/message/show_kind_p.h>
#include <VySmil/message/vysmilslideshow.h>
#include <VySmil/model/vysmilelemsmil.h>

#include <algorithm>

namespace {

using VySmilPrivate::Attr;
using VySmilPrivate::Elem;
using VySmilPrivate::nameOf;

VySmilElemBase &append(VySmilElemBase &parent, Elem elem)
{
    VySmilElemBase *const child = VySmilPrivate::makeElem(elem);
    Q_CHECK_PTR(child);
    parent.getSubElements()->append(child);
    return *child;
}

void setUnlessBlank(VySmilElemBase &elem, Attr attr, const QString &text)
{
    if (!QStringView(text).trimmed().isEmpty())
        elem.setAttribute(nameOf(attr), text);
}

void setMilliSeconds(VySmilElemBase &elem, Attr attr, qint32 ms)
{
    elem.setAttribute(nameOf(attr), QString::number(ms) + QStringView(u"ms"));
}

void setSize(VySmilElemBase &elem, QSize size, const QString &unit)
{
    elem.setAttribute(nameOf(Attr::Width), QString::number(size.width()) + unit);
    elem.setAttribute(nameOf(Attr::Height), QString::number(size.height()) + unit);
}

class TreeWriter
{
public:
    TreeWriter(const VySmilSlideShow &show, const QList<VySmilPart> &parts)
        : m_show(show),
          m_size(VySmilPrivate::usableSize(show.size)),
          m_parts(parts),
          m_references(parts),
          m_regions(show.slides, m_size)
    {
    }

    void write(VySmilElemSmil &root);

private:
    void writeHead(VySmilElemBase &head) const;
    void writeSlide(const VySmilSlide &slide, VySmilElemBase &par);
    void writeMedium(const VySmilMedium &medium, qint32 durationMs, VySmilElemBase &elem);
    bool endsWithItsPart(const VySmilMedium &medium, int part, qint32 durationMs) const;
    using Match = VySmilPrivate::PartIndex::Match;
    struct Source
    {
        QString text;
        int part; // that a reader finds by it, or -1
    };
    Source sourceOf(const VySmilMedium &medium) const;

    const VySmilSlideShow &m_show;
    const QSize m_size;
    const QList<VySmilPart> &m_parts;
    const VySmilPrivate::References m_references;
    VySmilPrivate::RegionPlan m_regions;
};

// The "meta" elements of all heads, as names and contents.
std::vector<std::pair<QString, QString>> metaOf(const VySmilElemSmil &root)
{
    std::vector<std::pair<QString, QString>> all;
    for (const VySmilElemBase *head : *root.getSubElements()) {
        if (VySmilPrivate::elemOf(*head) != Elem::Head)
            continue;
        for (const VySmilElemBase *meta : *head->getSubElements()) {
            if (VySmilPrivate::elemOf(*meta) == Elem::Meta)
                all.emplace_back(meta->getAttribute(nameOf(Attr::Name)),
                                 meta->getAttribute(nameOf(Attr::Content)));
        }
    }
    return all;
}

void TreeWriter::write(VySmilElemSmil &root)
{
    const auto meta = metaOf(root);
    root.clearSubElements();
    const QStringList names = root.getAttributes().keys();
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        if (!root.isValidAttr(*name, VySmil::SMIL_VER_DEFAULT))
            root.rmAttribute(*name);
    }
    VySmilElemBase &head = append(root, Elem::Head);
    for (const auto &[name, content] : meta) {
        VySmilElemBase &elem = append(head, Elem::Meta);
        setUnlessBlank(elem, Attr::Content, content);
        setUnlessBlank(elem, Attr::Name, name);
    }
    writeHead(head);
    VySmilElemBase &body = append(root, Elem::Body);
    for (const VySmilSlide &slide : m_show.slides)
        writeSlide(slide, append(body, Elem::Par));
}

// In percent where the message has no size of its own, so that each phone uses all of its screen.
void TreeWriter::writeHead(VySmilElemBase &head) const
{
    std::vector<QRect> rects;
    bool isInPercent = m_show.guesses.testFlag(VySmilMedium::GUESS_SCREEN);
    for (const VySmilPrivate::WrittenRegion &region : m_regions.regions()) {
        const auto percent = VySmilPrivate::inPercent(region.rect, m_size);
        isInPercent = isInPercent && percent;
        rects.push_back(percent.value_or(QRect()));
    }
    VySmilElemBase &layout = append(head, Elem::Layout);
    VySmilElemBase &rootLayout = append(layout, Elem::RootLayout);
    if (!isInPercent)
        setSize(rootLayout, m_size, QString());
    const QString unit = isInPercent ? QStringLiteral("%") : QString();
    auto percent = rects.begin();
    for (const VySmilPrivate::WrittenRegion &region : m_regions.regions()) {
        const QRect rect = isInPercent ? *percent++ : region.rect;
        VySmilElemBase &elem = append(layout, Elem::Region);
        elem.setAttribute(nameOf(Attr::Id), region.id);
        elem.setAttribute(nameOf(Attr::Left), QString::number(rect.left()) + unit);
        elem.setAttribute(nameOf(Attr::Top), QString::number(rect.top()) + unit);
        setSize(elem, rect.size(), unit);
        setUnlessBlank(elem, Attr::Fit, region.fit);
    }
}

void TreeWriter::writeSlide(const VySmilSlide &slide, VySmilElemBase &par)
{
    const qint32 durationMs = VySmilPrivate::usableDuration(slide.durationMs);
    setMilliSeconds(par, Attr::Dur, durationMs);
    for (const VySmilMedium &medium : slide.media)
        writeMedium(medium, durationMs, append(par, VySmilPrivate::elementFor(medium.kind)));
}

// In the order of the names, which is that of the store.
void TreeWriter::writeMedium(const VySmilMedium &medium, qint32 durationMs, VySmilElemBase &elem)
{
    const Source source = sourceOf(medium);
    setUnlessBlank(elem, Attr::Alt, medium.alt);
    if (medium.beginMs > 0)
        setMilliSeconds(elem, Attr::Begin, medium.beginMs);
    if (medium.endMs >= 0)
        setMilliSeconds(elem, Attr::End, medium.endMs);
    else if (endsWithItsPart(medium, source.part, durationMs))
        setMilliSeconds(elem, Attr::End, durationMs);
    setUnlessBlank(elem, Attr::Region, m_regions.nextId());
    setUnlessBlank(elem, Attr::Src, source.text);
}

// A reader takes the length of the part for the end where no other is given.
bool TreeWriter::endsWithItsPart(const VySmilMedium &medium, int part, qint32 durationMs) const
{
    if (part < 0 || m_parts.at(part).durationMs <= 0)
        return false;
    const auto readKind = VySmilPrivate::kindOf(VySmilPrivate::elementFor(medium.kind), m_parts, part);
    const qint32 length = VySmilPrivate::knownLength(readKind, m_parts, part);
    return length > 0 && qint64(std::max(0, medium.beginMs)) + length < durationMs;
}

// The medium's own, unless the part has a better one.
TreeWriter::Source TreeWriter::sourceOf(const VySmilMedium &medium) const
{
    const Match match = m_references.index().find(medium.src);
    const bool isKnown = medium.part >= 0 && medium.part < m_parts.size();
    const int part = isKnown ? medium.part : match.part;
    if (part < 0 || VySmilPrivate::References::isGood(medium.src, match, part))
        return {medium.src, match.part};
    const bool isBlank = QStringView(medium.src).trimmed().isEmpty();
    const QString better = isBlank ? m_references.of(part) : m_references.goodFor(part);
    return better.isEmpty() ? Source{medium.src, match.part} : Source{better, part};
}

} // namespace

void VySmilSlideShow::toTree(VySmilElemSmil *root, const QList<VySmilPart> &parts) const
{
    if (root)
        TreeWriter(*this, parts).write(*root);
}
