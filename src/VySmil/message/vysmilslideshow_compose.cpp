// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/layout_p.h>
#include <VySmil/message/mediumkind_p.h>
#include <VySmil/message/partindex_p.h>
#include <VySmil/model/vysmilelembody.h>
#include <VySmil/model/vysmilelemhead.h>
#include <VySmil/model/vysmilelemlayout.h>
#include <VySmil/model/vysmilelemmediaobjaudio.h>
#include <VySmil/model/vysmilelemmediaobjimg.h>
#include <VySmil/model/vysmilelemmediaobjref.h>
#include <VySmil/model/vysmilelemmediaobjtext.h>
#include <VySmil/model/vysmilelemmediaobjvideo.h>
#include <VySmil/model/vysmilelempar.h>
#include <VySmil/model/vysmilelemregion.h>
#include <VySmil/model/vysmilelemrootlayout.h>
#include <VySmil/model/vysmilelemsmil.h>

#include <algorithm>

namespace {

// Gives parts texts to refer to them by. A new text is unlike any location, name and id in the list.
class PartNamer
{
public:
    explicit PartNamer(QList<VySmilPart> &partList) : parts(partList)
    {
        for (const VySmilPart &part : std::as_const(parts))
            count(part, 1);
    }

    void nameAll();

private:
    void count(const VySmilPart &part, int number);
    void name(int part);
    QString unique(const QString &wanted);

    QList<VySmilPart> &parts;
    QHash<QString, int> taken;   // how often a text stands in the list, in any letter case
    QHash<QString, int> numbers; // the last that was put behind a text
};

void PartNamer::nameAll()
{
    for (int i = 0; i < parts.size(); ++i) {
        if (!VySmilPrivate::isAsciiText(VySmilPrivate::withoutBrackets(parts.at(i).contentId)) &&
            !VySmilPrivate::isAsciiText(parts.at(i).contentLocation))
            name(i);
    }
    // Parts may share the location that they brought.
    VySmilPrivate::PartIndex index(parts);
    std::vector<int> hidden;
    for (int i = 0; i < parts.size(); ++i) {
        if (parts.at(i).contentId.trimmed().isEmpty() && !VySmilPrivate::isSmilPart(parts.at(i)) &&
            index.find(VySmilPrivate::referenceTo(index, parts, i)) != i)
            hidden.push_back(i);
    }
    for (const int part : hidden)
        name(part);
}

void PartNamer::count(const VySmilPart &part, int number)
{
    for (const QString &text : {part.contentId, part.contentLocation, part.name}) {
        if (!text.isEmpty())
            taken[VySmilPrivate::withoutBrackets(text).toString().toCaseFolded()] += number;
    }
}

void PartNamer::name(int part)
{
    VySmilPart &named = parts[part];
    QString base = named.name.trimmed();
    for (QChar &c : base) {
        const bool isKept =
            c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'.' || c == u'-' || c == u'_');
        if (!isKept)
            c = u'_';
    }
    if (base.isEmpty())
        base = QStringLiteral("part%1").arg(part + 1);
    // Its own name is no hindrance.
    count(named, -1);
    const QString text = unique(base);
    for (QString *field : {&named.contentId, &named.contentLocation}) {
        if (field->trimmed().isEmpty())
            *field = text;
    }
    count(named, 1);
}

QString PartNamer::unique(const QString &wanted)
{
    const qsizetype dot = wanted.lastIndexOf(u'.');
    const qsizetype stem = dot < 0 ? wanted.size() : dot;
    QString candidate = wanted;
    int &number = numbers[wanted.toLower()];
    while (taken.value(candidate.toLower()) > 0) {
        number = std::max(number, 1) + 1;
        candidate = wanted.left(stem) + u'-' + QString::number(number) + wanted.mid(stem);
    }
    return candidate;
}

template <typename Elem>
Elem *append(VySmilElemBase &parent)
{
    auto *elem = new Elem;
    parent.getSubElements()->append(elem);
    return elem;
}

VySmilElemBase *appendMedium(VySmilElemBase &slide, VySmilMedium::MEDIUM_KIND kind)
{
    switch (kind) {
    case VySmilMedium::MEDIUM_IMAGE:
        return append<VySmilElemMediaObjImg>(slide);
    case VySmilMedium::MEDIUM_TEXT:
        return append<VySmilElemMediaObjText>(slide);
    case VySmilMedium::MEDIUM_AUDIO:
        return append<VySmilElemMediaObjAudio>(slide);
    case VySmilMedium::MEDIUM_VIDEO:
        return append<VySmilElemMediaObjVideo>(slide);
    default:
        return append<VySmilElemMediaObjRef>(slide);
    }
}

void setPixels(VySmilElemBase &elem, const char *name, int pixels)
{
    elem.setAttribute(QString::fromLatin1(name), QString::number(pixels));
}

void setMilliSeconds(VySmilElemBase &elem, const char *name, qint32 ms)
{
    elem.setAttribute(QString::fromLatin1(name), QString::number(ms) + QStringLiteral("ms"));
}

void setUnlessEmpty(VySmilElemBase &elem, const char *name, const QString &text)
{
    if (!text.isEmpty())
        elem.setAttribute(QString::fromLatin1(name), text);
}

class Writer
{
public:
    Writer(QSize givenSize, const QList<VySmilPart> &partList, VySmilElemSmil &root)
        : size(givenSize), parts(partList), index(partList)
    {
        root.clearSubElements();
        layout = append<VySmilElemLayout>(*append<VySmilElemHead>(root));
        auto *rootLayout = append<VySmilElemRootLayout>(*layout);
        setPixels(*rootLayout, "width", size.width());
        setPixels(*rootLayout, "height", size.height());
        body = append<VySmilElemBody>(root);
    }

    void write(const VySmilSlide &slide);

private:
    void write(const VySmilMedium &medium, qint32 durationMs, VySmilElemBase &par);
    QString regionFor(const VySmilMedium &medium);
    bool endsWith(const VySmilMedium &medium, const QString &src, qint32 durationMs);

    const QSize size;
    const QList<VySmilPart> &parts;
    VySmilPrivate::PartIndex index;
    VySmilElemBase *layout;
    VySmilElemBase *body;
    QHash<QString, QString> regionIds; // by what is shown there and where
    int regionCounts[2] = {0, 0};      // of texts, of all else
};

void Writer::write(const VySmilSlide &slide)
{
    auto *par = append<VySmilElemPar>(*body);
    const qint32 durationMs =
        slide.durationMs > 0 ? slide.durationMs : VySmilSlideShowOptions().defaultDurationMs;
    setMilliSeconds(*par, "dur", durationMs);
    for (const VySmilMedium &medium : slide.media)
        write(medium, durationMs, *par);
}

void Writer::write(const VySmilMedium &medium, qint32 durationMs, VySmilElemBase &par)
{
    VySmilElemBase &elem = *appendMedium(par, medium.kind);
    const bool hasPart = medium.src.isEmpty() && medium.part >= 0 && medium.part < parts.size();
    const QString src = hasPart ? VySmilPrivate::referenceTo(index, parts, medium.part) : medium.src;
    setUnlessEmpty(elem, "src", src);
    setUnlessEmpty(elem, "alt", medium.alt);
    setUnlessEmpty(elem, "region", regionFor(medium));
    if (medium.beginMs > 0)
        setMilliSeconds(elem, "begin", medium.beginMs);
    if (!endsWith(medium, src, durationMs))
        setMilliSeconds(elem, "end", std::max(0, medium.endMs));
}

// Whether a reader finds out by himself that the medium ends when it does.
bool Writer::endsWith(const VySmilMedium &medium, const QString &src, qint32 durationMs)
{
    const int part = index.find(src);
    const auto kind = part < 0 ? std::nullopt : VySmilPrivate::kindOfPart(parts.at(part));
    const qint32 length = VySmilPrivate::knownLength(kind.value_or(medium.kind), parts, part);
    const qint64 lengthEnd = length > 0 ? qint64(std::max(0, medium.beginMs)) + length : durationMs;
    return medium.endMs == durationMs && lengthEnd >= durationMs;
}

// The id of the region with the rectangle of the medium, which is made if it is the first there. Empty where
// there is nothing to show.
QString Writer::regionFor(const VySmilMedium &medium)
{
    const QRect rect = medium.rect.intersected(QRect(QPoint(0, 0), size));
    if (medium.kind == VySmilMedium::MEDIUM_AUDIO || rect.isEmpty())
        return QString();
    const bool isText = medium.kind == VySmilMedium::MEDIUM_TEXT;
    QString &id = regionIds[QStringLiteral("%1 %2 %3 %4 %5")
                                .arg(isText)
                                .arg(rect.x())
                                .arg(rect.y())
                                .arg(rect.width())
                                .arg(rect.height())];
    if (!id.isEmpty())
        return id;
    int &count = regionCounts[isText ? 0 : 1];
    id = isText ? QStringLiteral("Text") : QStringLiteral("Image");
    if (++count > 1)
        id += QString::number(count);
    auto *region = append<VySmilElemRegion>(*layout);
    region->setAttribute(QStringLiteral("id"), id);
    setPixels(*region, "left", rect.x());
    setPixels(*region, "top", rect.y());
    setPixels(*region, "width", rect.width());
    setPixels(*region, "height", rect.height());
    const QString usual = isText ? QStringLiteral("scroll") : QStringLiteral("meet");
    region->setAttribute(QStringLiteral("fit"), medium.fit.isEmpty() ? usual : medium.fit);
    return id;
}

} // namespace

void VySmilSlideShow::toTree(VySmilElemSmil *root, const QList<VySmilPart> &parts) const
{
    if (!root)
        return;
    VySmilSlideShowOptions options;
    options.screen = size;
    Writer writer(VySmilPrivate::withDefaults(options).screen, parts, *root);
    for (const VySmilSlide &slide : slides)
        writer.write(slide);
}

VySmilSlideShow VySmilSlideShow::fromParts(QList<VySmilPart> &parts, const VySmilSlideShowOptions &options)
{
    const VySmilSlideShowOptions given = VySmilPrivate::withDefaults(options);
    PartNamer(parts).nameAll();
    VySmilPrivate::PartIndex index(parts);
    VySmilSlideShow show;
    show.size = given.screen;
    int sorts = 0; // those that the last slide has
    for (int i = 0; i < parts.size(); ++i) {
        const auto kind = VySmilPrivate::kindOfPart(parts.at(i));
        if (!kind || *kind == VySmilMedium::MEDIUM_OTHER) {
            show.unusedParts << i;
            continue;
        }
        VySmilMedium medium;
        medium.kind = *kind;
        medium.part = i;
        medium.src = VySmilPrivate::referenceTo(index, parts, i);
        const int needed = VySmilPrivate::sortsOf(*kind);
        if (show.slides.isEmpty() || (sorts & needed) != 0) {
            show.slides.append(VySmilSlide());
            sorts = 0;
        }
        sorts |= needed;
        show.slides.last().media.append(medium);
    }
    for (VySmilSlide &slide : show.slides) {
        VySmilPrivate::placeByDefault(slide.media, show.size);
        const auto lengthOf = [&parts](const VySmilMedium &medium) {
            return VySmilPrivate::knownLength(medium.kind, parts, medium.part);
        };
        for (const VySmilMedium &medium : std::as_const(slide.media))
            slide.durationMs = std::max(slide.durationMs, lengthOf(medium));
        if (slide.durationMs <= 0)
            slide.durationMs = given.defaultDurationMs;
        for (VySmilMedium &medium : slide.media)
            medium.endMs = lengthOf(medium) > 0 ? lengthOf(medium) : slide.durationMs;
    }
    return show;
}
