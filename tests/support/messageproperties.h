// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_MESSAGEPROPERTIES_H
#define VYSMIL_TESTS_MESSAGEPROPERTIES_H

#include "messagecase.h"
#include "messagemodel.h"
#include "treetext.h"

#include <QSet>

// What holds of any message. Each function says what does not, and nothing where all does.

inline QString firstFault(std::initializer_list<std::pair<bool, const char *>> faults)
{
    for (const auto &[isBroken, fault] : faults) {
        if (isBroken)
            return fault;
    }
    return {};
}

inline QList<VySmilMedium> mediaOf(const VySmilSlideShow &show)
{
    QList<VySmilMedium> media;
    for (const VySmilSlide &slide : show.slides)
        media << slide.media;
    return media;
}

/// The media below \a elem in document order, of a "switch" only those of the first child.
inline void collectMedia(const VySmilElemBase &elem, QList<const VySmilElemBase *> &media)
{
    if (QStringList{"img", "text", "audio", "video", "ref"}.contains(elem.getElemType()))
        media << &elem;
    const bool isSmilWithBody = elem.getElemType() == "smil" && elem.getSubElementCounts("body") > 0;
    for (const VySmilElemBase *child : *elem.getSubElements()) {
        if (!isSmilWithBody || child->getElemType() == "body")
            collectMedia(*child, media);
        if (elem.getElemType() == "switch")
            return;
    }
}

/// The sorts of a medium by its kind, of which a slide is to have one each, as bits: picture, text, sound.
inline constexpr int sortsOf[] = {1, 2, 4, 1 | 4, 0};

inline bool hasMediaOfOneSort(const VySmilSlide &slide)
{
    int sorts = 0;
    return std::any_of(slide.media.begin(), slide.media.end(), [&sorts](const VySmilMedium &medium) {
        const int others = std::exchange(sorts, sorts | sortsOf[medium.kind]);
        return (others & sortsOf[medium.kind]) != 0;
    });
}

inline QString brokenInMedium(const VySmilMedium &medium, const VySmilSlide &slide, const QSize &size,
                              const QList<VySmilPart> &parts)
{
    const auto isGuessed = [&medium](auto guess) { return medium.guesses.testFlag(guess); };
    const int sorts = sortsOf[medium.kind];
    const bool isNamed = !medium.src.trimmed().isEmpty();
    const bool hasPlace = !medium.rect.isNull();
    const bool hasRegion = medium.regionElem || !medium.fit.isEmpty() || medium.background.isValid() ||
                           isGuessed(VySmilMedium::GUESS_REGION);
    const bool hasUnknownPart = isNamed && medium.part < 0 && !parts.isEmpty();
    return firstFault({
        {medium.rect != (medium.area & QRect(QPoint(0, 0), size)), "a place that is not the area cut"},
        {hasPlace ? sorts == 4 || medium.rect.isEmpty() : (sorts & 3) != 0, "a place, or none"},
        {!hasPlace && hasRegion, "something of a region without a place"},
        {medium.foreground.isValid() && sorts != 2, "a foreground of something else than text"},
        {medium.beginMs < 0 || slide.durationMs < medium.beginMs, "a begin outside of the slide"},
        {medium.endMs < -1 || slide.durationMs <= medium.endMs, "an end outside of the slide"},
        {medium.endMs != -1 && medium.endMs < medium.beginMs, "an end before the begin"},
        {medium.part != partsThatFit(medium.src, parts).value(0, -1), "a part that is not the first to fit"},
        {isGuessed(VySmilMedium::GUESS_PART) != hasUnknownPart, "a part that was guessed, or not"},
        {isGuessed(VySmilMedium::GUESS_SIZE), "a size guessed by a medium"},
    });
}

/// Whether the slide comes from a "par", or from its one medium.
inline bool knowsItsElement(const VySmilSlide &slide)
{
    return slide.elem && (slide.elem->getElemType() == "par" ||
                          (slide.media.size() == 1 && slide.media.first().elem == slide.elem));
}

inline QString brokenInSlides(const VySmilElemSmil &root, const MessageCase &message,
                              const VySmilSlideShow &show)
{
    QString broken;
    QSet<int> used;
    for (const VySmilSlide &slide : show.slides) {
        broken += firstFault({
            {slide.durationMs <= 0, "a slide without a duration"},
            {!knowsItsElement(slide), "a slide of another element"},
            {slide.guesses & ~VySmilMedium::GUESSES(VySmilMedium::GUESS_TIME), "a guess that no slide has"},
        });
        for (const VySmilMedium &medium : slide.media) {
            broken += brokenInMedium(medium, slide, show.size, message.parts);
            used << medium.part;
        }
    }
    for (int i = 0; i < message.parts.size(); ++i) {
        const auto count = used.contains(i) + show.unusedParts.count(i) + message.parts[i].isSmil();
        broken += firstFault({{count != 1, "a part that is not used, unused or the SMIL"}});
    }
    QList<const VySmilElemBase *> written;
    collectMedia(root, written);
    const QList<VySmilMedium> shown = mediaOf(show);
    const auto isSame = [](const VySmilElemBase *elem, const auto &medium) { return elem == medium.elem; };
    return broken + firstFault({
                        {show.size.isEmpty() || show.size.boundedTo({65'535, 65'535}) != show.size,
                         "a size out of bounds"},
                        {show.guesses == VySmilMedium::GUESS_SCREEN, "a guessed screen that nothing is of"},
                        {show.guesses & ~VySmilMedium::GUESSES(17), "a guess that no slide show has"},
                        {!std::is_sorted(show.unusedParts.begin(), show.unusedParts.end()),
                         "unused parts out of order"},
                        {!std::equal(written.begin(), written.end(), shown.begin(), shown.end(), isSame),
                         "other media"},
                    });
}

/// What writing must keep of \a show; the references are another matter.
inline QString keptText(const VySmilSlideShow &show)
{
    static const QStringList fits{"fill", "hidden", "meet", "scroll", "slice"};
    QString text = QString("%1x%2").arg(show.size.width()).arg(show.size.height());
    for (const VySmilSlide &slide : show.slides) {
        text += QString("\nslide %1").arg(slide.durationMs);
        for (VySmilMedium medium : slide.media) {
            const QString fit = medium.fit.trimmed();
            medium.src.clear();
            medium.alt = medium.alt.trimmed();
            text += QString("\n%1 part %2 ").arg(mediumText(medium)).arg(medium.part);
            text += fits.contains(fit) ? fit : QString();
        }
    }
    return text;
}

/// Writes \a show and reads it again.
inline QString brokenInWriting(const MessageCase &message, const VySmilSlideShow &show)
{
    const QList<VySmilPart> &parts = message.parts;
    VySmilElemSmil tree, root, twice;
    QString text;
    show.toTree(&tree, parts);
    if (VySmilParser::assemble(&tree, text, true) != 0 || VySmilParser::parse(text, &root, true) != 0)
        return "what was written is not strict-clean";
    VySmilSlideShow again;
    again.fromTree(root, parts, message.options);
    again.toTree(&twice, parts);
    if (treeText(twice) != treeText(root))
        return "what is written twice differs:\n" + treeText(root) + u'\n' + treeText(twice);
    if (keptText(again) != keptText(show))
        return "what was written shows otherwise:\n" + slidesText(show) + u'\n' + slidesText(again);

    QSet<VySmilFinding::RULE> excused; // what is wrong with the slides is so when they are written
    if (show.slides.isEmpty() || treeText(root).count("region[") > 2)
        excused << VySmilFinding::RULE_REGION_ID << VySmilFinding::RULE_STRUCTURE;
    for (const VySmilSlide &slide : std::as_const(again.slides)) {
        if (slide.media.isEmpty())
            excused << VySmilFinding::RULE_STRUCTURE;
        if (hasMediaOfOneSort(slide))
            excused << VySmilFinding::RULE_MEDIA_COUNT;
        for (const VySmilMedium &medium : slide.media) {
            if (slide.endOf(medium) <= medium.beginMs)
                excused << VySmilFinding::RULE_NEVER_SHOWN;
            if (!isGoodReference(medium.src, medium.part, parts))
                excused << VySmilFinding::RULE_SOURCE;
        }
    }
    for (const auto &finding : VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts)) {
        if (!excused.contains(finding.rule))
            return "what was written: " + finding.toString();
    }
    const QList<VySmilMedium> before = mediaOf(show), after = mediaOf(again);
    for (int i = 0; i < after.size(); ++i) {
        const VySmilMedium &was = before.at(i), &is = after.at(i);
        if (is.src != was.src.trimmed() && (was.part < 0 || isGoodReference(was.src, was.part, parts) ||
                                            partsThatFit(is.src, parts).size() != 1))
            return "a reference that was changed: " + was.src + " to " + is.src;
        if (is.guesses & ~VySmilMedium::GUESSES(VySmilMedium::GUESS_PART))
            return "what was written leaves something to guess";
    }
    return {};
}

inline QString brokenInChecks(const VySmilElemSmil &root, const QList<VySmilPart> &parts)
{
    static const QRegularExpression control(
        "[\\p{Cc}\\x{61C}\\x{200E}\\x{200F}\\x{2028}-\\x{202E}\\x{2066}-\\x{2069}]");
    static const QRegularExpression relaxed("^.[EW]"), graver("^WE");
    const auto strict = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts);
    const auto count = VySmilConformance::check(root, VySmilConformance::LEVEL_RELAXED, parts).size();
    const QStringList lines = findingsText(root, parts).split(u'\n', Qt::SkipEmptyParts);
    const auto isDisorder = [](const VySmilFinding &a, const VySmilFinding &b) {
        return a.elem == b.elem && std::tie(b.attribute, b.rule) <= std::tie(a.attribute, a.rule);
    };
    return firstFault({
        {lines.size() != strict.size() || lines.join(u' ').contains(control), "a finding that is not a line"},
        {lines.filter(relaxed).size() != count || !lines.filter(graver).isEmpty(), "more when relaxed"},
        {std::adjacent_find(strict.begin(), strict.end(), isDisorder) != strict.end(),
         "findings in disorder"},
    });
}

inline QString brokenInSplitting(const MessageCase &message, const VySmilSlideShow &show)
{
    VySmilSlideShow split = show;
    split.splitSlides();
    const QList<VySmilMedium> before = mediaOf(show), after = mediaOf(split);
    const auto isSame = [](const VySmilMedium &a, const VySmilMedium &b) { return a.elem == b.elem; };
    VySmilSlideShow laidOut = split;
    laidOut.layOut();
    VySmilSlideShow again = laidOut;
    again.splitSlides();
    again.layOut();
    const QString broken = firstFault({
        {std::any_of(split.slides.begin(), split.slides.end(), hasMediaOfOneSort), "two of a sort left"},
        {!std::all_of(split.slides.begin(), split.slides.end(), knowsItsElement), "an element that is lost"},
        {!std::is_permutation(before.begin(), before.end(), after.begin(), after.end(), isSame),
         "other media"},
        {std::none_of(show.slides.begin(), show.slides.end(), hasMediaOfOneSort) && split != show, "no need"},
        {again != laidOut, "splitting is not done once"},
    });
    return broken + brokenInWriting(message, split) + brokenInWriting(message, laidOut);
}

inline QString brokenInMessage(const VySmilElemSmil &root, const MessageCase &message)
{
    VySmilSlideShow show;
    const int result = show.fromTree(root, message.parts, message.options);
    return firstFault({{(result == VySmil::RESULT_OK) == show.slides.isEmpty(), "another result"}}) +
           brokenInSlides(root, message, show) + brokenInWriting(message, show) +
           brokenInSplitting(message, show) + brokenInChecks(root, message.parts);
}

/// What parts become that are named and composed.
inline QString brokenInParts(const MessageCase &message)
{
    MessageCase named = message;
    VySmilPart::nameAll(named.parts);
    const QList<VySmilPart> &parts = named.parts;
    const auto isReferred = [&parts](int part) {
        return isGoodReference(parts.at(part).contentLocation.trimmed(), part, parts) ||
               isGoodReference("cid:" + fieldOf(parts.at(part), 0), part, parts);
    };
    for (int i = 0; i < parts.size(); ++i) {
        const VySmilPart &brought = message.parts.at(i);
        VySmilPart part = parts.at(i);
        const bool isFull =
            !brought.contentId.trimmed().isEmpty() && !brought.contentLocation.trimmed().isEmpty();
        if (part.isSmil() ? part != brought : !isFull && !isReferred(i))
            return QString("part %1 is named, or not").arg(i);
        if (brought.contentId.trimmed().isEmpty())
            part.contentId = brought.contentId;
        if (brought.contentLocation.trimmed().isEmpty())
            part.contentLocation = brought.contentLocation;
        if (part != brought)
            return QString("part %1 was changed").arg(i);
    }
    QList<VySmilPart> twice = parts;
    VySmilPart::nameAll(twice);
    VySmilSlideShow show;
    const int result = show.fromParts(parts, message.options);
    const QString broken = firstFault({
        {twice != parts, "named twice otherwise"},
        {(result == VySmil::RESULT_OK) == show.slides.isEmpty(), "another result than there are slides"},
        {std::any_of(show.slides.begin(), show.slides.end(), hasMediaOfOneSort), "two of a sort in a slide"},
    });
    if (!broken.isEmpty())
        return broken;
    bool isGood = true;
    for (const VySmilMedium &medium : mediaOf(show)) {
        isGood = isGood && isReferred(medium.part);
        if (isReferred(medium.part) && !isGoodReference(medium.src, medium.part, parts))
            return "parts are called by a name that is not good: " + medium.src;
    }
    VySmilElemSmil root;
    show.toTree(&root, parts);
    return (isGood ? brokenInWriting(named, show) : QString()) + brokenInMessage(root, named);
}

#endif
