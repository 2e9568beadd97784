// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_MESSAGEPROPERTIES_H
#define VYSMIL_TESTS_MESSAGEPROPERTIES_H

#include "messagecase.h"
#include "messagemodel.h"
#include "treetext.h"

#include <QSet>

#include <limits>

// What holds of any message. Each function says what does not, and nothing where all does.

/// The elements below \a elem in document order, of a "switch" only the first child.
inline void collectShown(const VySmilElemBase &elem, QList<const VySmilElemBase *> &all)
{
    all << &elem;
    const bool isSwitch = elem.getElemType() == "switch";
    for (const VySmilElemBase *child : *elem.getSubElements()) {
        collectShown(*child, all);
        if (isSwitch)
            return;
    }
}

inline QList<const VySmilElemBase *> mediaBelow(const VySmilElemSmil &root)
{
    QList<const VySmilElemBase *> all;
    const bool hasBody = root.getSubElementCounts("body") > 0;
    for (const VySmilElemBase *child : *root.getSubElements()) {
        if (!hasBody || child->getElemType() == "body")
            collectShown(*child, all);
    }
    const QStringList media{"img", "text", "audio", "video", "ref"};
    const auto isNone = [&](const VySmilElemBase *elem) { return !media.contains(elem->getElemType()); };
    all.erase(std::remove_if(all.begin(), all.end(), isNone), all.end());
    return all;
}

inline QString brokenInMedium(const VySmilMedium &medium, const VySmilSlide &slide, const QSize &size,
                              const QList<VySmilPart> &parts)
{
    const QString type = medium.elem->getElemType();
    const bool isVisible = (sortsOf(medium.kind) & 3) != 0;
    const bool isAudio = medium.kind == VySmilMedium::MEDIUM_AUDIO;
    const QList<int> fits = medium.src.trimmed().isEmpty() ? QList<int>() : partsThatFit(medium.src, parts);
    const int kind = medium.part < 0 ? -1 : kindOfType(parts.at(medium.part));
    const int usual = int(QStringList{"img", "text", "audio", "video", "ref"}.indexOf(type));
    if (medium.rect != (medium.area & QRect(QPoint(0, 0), size)))
        return "a rectangle that is not the area cut to the root layout";
    if (medium.rect.isNull() ? isVisible : isAudio || medium.rect.isEmpty())
        return "a medium without a place, or a sound with one";
    if (medium.rect.isNull() && (medium.regionElem || !medium.fit.isEmpty() || medium.background.isValid() ||
                                 medium.guesses.testFlag(VySmilMedium::GUESS_REGION)))
        return "something of a region without a place";
    if (medium.foreground.isValid() && medium.kind != VySmilMedium::MEDIUM_TEXT)
        return "a foreground of something else than text";
    if (medium.beginMs < 0 || slide.durationMs < medium.beginMs)
        return "a begin outside of the slide";
    if (medium.endMs != -1 && (medium.endMs < medium.beginMs || slide.durationMs <= medium.endMs))
        return "an end outside of the slide, or before the begin";
    if (medium.part != fits.value(0, -1))
        return "another part than the first that fits: " + medium.src;
    if (medium.kind != (kind >= 0 ? kind : usual))
        return "another kind than that of its part: " + medium.src;
    if (medium.guesses.testFlag(VySmilMedium::GUESS_PART) !=
        (!parts.isEmpty() && medium.part < 0 && !medium.src.trimmed().isEmpty()))
        return "a part that was guessed, or not: " + medium.src;
    return medium.guesses.testFlag(VySmilMedium::GUESS_SIZE) ? "a size guessed by a medium" : QString();
}

inline QString brokenInSlides(const VySmilElemSmil &root, const MessageCase &message,
                              const VySmilSlideShow &show)
{
    QSet<int> used;
    QList<const VySmilElemBase *> shown;
    if (QRect(1, 1, 65'535, 65'535).intersected(QRect(QPoint(1, 1), show.size)).size() != show.size ||
        show.size.isEmpty())
        return "a size out of bounds";
    if (show.guesses == VySmilMedium::GUESS_SCREEN || (show.guesses & ~VySmilMedium::GUESSES(17)))
        return "a guess that no slide show has";
    for (const VySmilSlide &slide : show.slides) {
        if (slide.durationMs <= 0 || (slide.guesses & ~VySmilMedium::GUESSES(VySmilMedium::GUESS_TIME)))
            return "a slide without a duration, or with a guess that none has";
        const QList<qint32> instants = slide.instants();
        if (instants.first() != 0 || instants.last() != slide.durationMs ||
            std::adjacent_find(instants.begin(), instants.end(), std::greater_equal<>()) != instants.end())
            return "instants out of order";
        for (const VySmilMedium &medium : slide.media) {
            const QString broken = brokenInMedium(medium, slide, show.size, message.parts);
            if (!broken.isEmpty())
                return broken;
            shown << medium.elem;
            used << medium.part;
        }
    }
    for (int i = 0; i < message.parts.size(); ++i) {
        if (used.contains(i) + show.unusedParts.contains(i) + message.parts.at(i).isSmil() != 1)
            return QString("part %1 is neither used nor unused, or both").arg(i);
    }
    VySmilElemSmil copied;
    copied.copyFrom(root);
    VySmilSlideShow again;
    again.fromTree(copied, message.parts, message.options);
    if (again != show || !std::is_sorted(show.unusedParts.begin(), show.unusedParts.end()))
        return "a copy of the tree shows otherwise";
    const QList<const VySmilElemBase *> written = mediaBelow(root);
    // Qt's == hands the null pointer of an empty list to memcmp.
    return std::equal(written.begin(), written.end(), shown.begin(), shown.end())
               ? QString()
               : "a medium in no slide, in two, or out of order";
}

inline QString usualFit(const QString &fit)
{
    static const QStringList fits{"fill", "hidden", "meet", "scroll", "slice"};
    return fits.contains(fit.trimmed()) ? fit.trimmed() : QString();
}

/// What writing must keep of \a show, whose references \a again may have changed.
inline QString keptText(const VySmilSlideShow &show, const VySmilSlideShow &again)
{
    QString text = QString("%1x%2").arg(show.size.width()).arg(show.size.height());
    for (int i = 0; i < show.slides.size(); ++i) {
        text += QString("\nslide %1").arg(show.slides.at(i).durationMs);
        for (int k = 0; k < show.slides.at(i).media.size(); ++k) {
            VySmilMedium medium = show.slides.at(i).media.at(k);
            medium.src = again.slides.value(i).media.value(k).src;
            medium.alt = medium.alt.trimmed();
            text += QString("\n %1 part %2 ").arg(mediumText(medium)).arg(medium.part) + usualFit(medium.fit);
        }
    }
    return text;
}

/// Whether what was written of \a show is to pass the strict check: slides have a medium and one of a sort,
/// all are there for some time, references are good, and regions at most two.
inline bool fitsProfile(const VySmilSlideShow &show, const VySmilSlideShow &again,
                        const VySmilElemSmil &written, const QList<VySmilPart> &parts)
{
    const VySmilElemBase *head = written.getSubElements()->at(0);
    const VySmilElemBase *layout = head->getSubElements()->at(head->getSubElements()->count() - 1);
    for (int i = 0; i < show.slides.size(); ++i) {
        const VySmilSlide &slide = show.slides.at(i);
        for (int k = 0; k < slide.media.size(); ++k) {
            const VySmilMedium &medium = slide.media.at(k);
            const QString src = again.slides.at(i).media.at(k).src;
            if (slide.endOf(medium) <= medium.beginMs ||
                (parts.isEmpty() ? !isPrintable(src) : !isGoodReference(src, medium.part, parts)))
                return false;
        }
        if (slide.media.isEmpty() || hasMediaOfOneSort(slide))
            return false;
    }
    return !show.slides.isEmpty() && layout->getSubElementCounts("region") <= 2;
}

/// Writes \a show and reads it again.
inline QString brokenInWriting(const MessageCase &message, const VySmilSlideShow &show)
{
    VySmilElemSmil tree;
    show.toTree(&tree, message.parts);
    QString text;
    VySmilElemSmil root;
    if (VySmilParser::assemble(&tree, text, true) != 0 || VySmilParser::parse(text, &root, true) != 0)
        return "what was written is not strict-clean";
    VySmilSlideShow again;
    again.fromTree(root, message.parts, message.options);
    if (keptText(again, again) != keptText(show, again))
        return "what was written shows otherwise:\n" + slidesText(show) + u'\n' + slidesText(again);
    for (int i = 0; i < show.slides.size(); ++i) {
        for (int k = 0; k < show.slides.at(i).media.size(); ++k) {
            const QString src = show.slides.at(i).media.at(k).src;
            const int part = show.slides.at(i).media.at(k).part;
            const VySmilMedium &medium = again.slides.at(i).media.at(k);
            const bool isGood = isGoodReference(src, part, message.parts);
            if (medium.src != src.trimmed() &&
                (part < 0 || isGood || partsThatFit(medium.src, message.parts).size() != 1))
                return "a reference that was changed: " + src + " to " + medium.src;
            if (medium.guesses.testFlag(VySmilMedium::GUESS_TIME) ||
                medium.guesses.testFlag(VySmilMedium::GUESS_REGION))
                return "what was written leaves something to guess";
        }
    }
    VySmilElemSmil twice;
    again.toTree(&twice, message.parts);
    if (treeText(twice) != treeText(root))
        return "what is written twice differs:\n" + treeText(root) + u'\n' + treeText(twice);
    const auto findings = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, message.parts);
    if (!findings.isEmpty() && fitsProfile(show, again, root, message.parts))
        return "what was written: " + findings.first().toString();
    return QString();
}

inline bool isNotOneLine(QChar c)
{
    const char16_t u = c.unicode();
    return u < u' ' || (u >= 0x7f && u < 0xa0) || u == 0x61c || u == 0x200e || u == 0x200f ||
           (u >= 0x2028 && u <= 0x202e) || (u >= 0x2066 && u <= 0x2069);
}

inline QString brokenInChecks(const VySmilElemSmil &root, const QList<VySmilPart> &parts)
{
    const auto strict = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts);
    if (strict != VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts))
        return "two checks of the same differ";
    for (int i = 0; i < strict.size(); ++i) {
        const VySmilFinding &finding = strict.at(i);
        const QString line = finding.toString();
        if (!line.startsWith(finding.path + u':') || std::any_of(line.begin(), line.end(), isNotOneLine))
            return "a finding that is not a line behind its path: " + line;
        if (i > 0 && strict.at(i - 1).elem == finding.elem &&
            std::pair(finding.attribute, finding.rule) <=
                std::pair(strict.at(i - 1).attribute, strict.at(i - 1).rule))
            return "findings out of order, or twice: " + line;
    }
    for (const VySmilFinding &finding :
         VySmilConformance::check(root, VySmilConformance::LEVEL_RELAXED, parts)) {
        const auto isGraver = [&finding](const VySmilFinding &other) {
            return other.rule == finding.rule && other.elem == finding.elem &&
                   other.attribute == finding.attribute && other.severity <= finding.severity;
        };
        if (std::none_of(strict.begin(), strict.end(), isGraver))
            return "relaxed finds more than strict: " + finding.toString();
    }
    return QString();
}

/// Whether something of the message is beyond what phones can be told: a region that is not on the screen,
/// times of weeks.
inline bool isBeyond(const VySmilElemSmil &root, const VySmilSlideShow &show)
{
    QList<const VySmilElemBase *> all{&root};
    QSet<QString> ids;
    for (int i = 0; i < all.size(); ++i) {
        if (all.at(i)->getElemType() == "region")
            ids << all.at(i)->getAttribute("id");
        for (const VySmilElemBase *child : *all.at(i)->getSubElements())
            all << child;
    }
    for (const VySmilSlide &slide : show.slides) {
        for (const VySmilMedium &medium : slide.media) {
            if ((medium.guesses.testFlag(VySmilMedium::GUESS_REGION) && ids.contains(medium.region)) ||
                medium.beginMs == std::numeric_limits<qint32>::max())
                return true;
        }
    }
    return false;
}

inline QString brokenInSplitting(const MessageCase &message, const VySmilSlideShow &show)
{
    VySmilSlideShow split = show;
    split.splitSlides();
    QList<const VySmilElemBase *> before, after;
    for (const VySmilSlide &slide : show.slides) {
        for (const VySmilMedium &medium : slide.media)
            before << medium.elem;
        if (!hasMediaOfOneSort(slide) && !split.slides.contains(slide))
            return "a slide changed that was not to be split";
    }
    for (const VySmilSlide &slide : std::as_const(split.slides)) {
        for (const VySmilMedium &medium : slide.media)
            after << medium.elem;
        if (hasMediaOfOneSort(slide))
            return "two of a sort after splitting";
    }
    std::sort(before.begin(), before.end());
    std::sort(after.begin(), after.end());
    VySmilSlideShow laidOut = split;
    laidOut.layOut();
    VySmilSlideShow again = laidOut;
    again.splitSlides();
    again.layOut();
    if (before != after || again != laidOut)
        return "splitting loses media, or is not done once";
    VySmilElemSmil root;
    laidOut.toTree(&root, message.parts);
    for (const VySmilFinding &finding :
         VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, message.parts)) {
        if (finding.rule >= VySmilFinding::RULE_REGION_ID && finding.rule <= VySmilFinding::RULE_TIME_FORM)
            return "split and laid out: " + finding.toString();
    }
    const QString broken = brokenInWriting(message, split);
    return broken.isEmpty() ? brokenInWriting(message, laidOut) : broken;
}

inline QString brokenInMessage(const VySmilElemSmil &root, const MessageCase &message)
{
    VySmilSlideShow show;
    const int result = show.fromTree(root, message.parts, message.options);
    if ((result == VySmil::RESULT_OK) == show.slides.isEmpty())
        return "another result than there are slides";
    for (const QString &broken : {brokenInSlides(root, message, show), brokenInWriting(message, show),
                                  brokenInSplitting(message, show), brokenInChecks(root, message.parts)}) {
        if (!broken.isEmpty())
            return broken;
    }
    VySmilElemSmil written;
    show.toTree(&written, message.parts);
    for (const auto level : {VySmilConformance::LEVEL_STRICT, VySmilConformance::LEVEL_RELAXED}) {
        if (!VySmilConformance::check(root, level, message.parts).isEmpty() || isBeyond(root, show))
            continue;
        const auto findings = VySmilConformance::check(written, level, message.parts);
        if (!findings.isEmpty())
            return "repaired what was clean: " + findings.first().toString();
    }
    return QString();
}

inline QString brokenInNames(const QList<VySmilPart> &brought, const QList<VySmilPart> &parts)
{
    for (int i = 0; i < parts.size(); ++i) {
        VySmilPart part = parts.at(i);
        const auto isReferred = [&](const VySmilPart &named) {
            return isGoodReference(named.contentLocation.trimmed(), i, parts) ||
                   isGoodReference("cid:" + fieldOf(named, 0), i, parts);
        };
        const bool isNamed = part.contentId != brought.at(i).contentId ||
                             part.contentLocation != brought.at(i).contentLocation;
        const bool isFull = !brought.at(i).contentId.trimmed().isEmpty() &&
                            !brought.at(i).contentLocation.trimmed().isEmpty();
        if (brought.at(i).contentId.trimmed().isEmpty())
            part.contentId = brought.at(i).contentId;
        if (brought.at(i).contentLocation.trimmed().isEmpty())
            part.contentLocation = brought.at(i).contentLocation;
        if (part != brought.at(i))
            return QString("part %1 was changed").arg(i);
        if (part.isSmil() ? isNamed : !isFull && !isReferred(parts.at(i)))
            return QString("part %1 is named, or not").arg(i);
    }
    QList<VySmilPart> twice = parts;
    VySmilPart::nameAll(twice);
    return twice == parts ? QString() : "named twice otherwise";
}

inline QString brokenInParts(const MessageCase &message)
{
    QList<VySmilPart> parts = message.parts;
    VySmilPart::nameAll(parts);
    QString broken = brokenInNames(message.parts, parts);
    if (!broken.isEmpty())
        return broken;
    VySmilSlideShow show;
    if ((show.fromParts(parts, message.options) == VySmil::RESULT_OK) == show.slides.isEmpty())
        return "another result than there are slides of parts";
    bool isPromised = !show.slides.isEmpty();
    for (const VySmilSlide &slide : std::as_const(show.slides)) {
        for (const VySmilMedium &medium : slide.media) {
            if (!isGoodReference(medium.src, medium.part, parts))
                isPromised = false; // brought both, and neither is good
        }
    }
    MessageCase named;
    named.parts = parts;
    named.options = message.options;
    VySmilElemSmil root;
    show.toTree(&root, parts);
    const auto findings = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts);
    if (isPromised && !findings.isEmpty())
        return "slides of parts: " + findings.first().toString();
    return brokenInMessage(root, named);
}

#endif
