// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_MESSAGEPROPERTIES_H
#define VYSMIL_TESTS_MESSAGEPROPERTIES_H

#include "messagecase.h"

#include <QSet>
#include <QUrl>

#include <algorithm>

// What holds of any message. Each function says what does not, and nothing where all does.

inline bool isMedium(const QString &type)
{
    static const QStringList media{QStringLiteral("img"), QStringLiteral("text"), QStringLiteral("audio"),
                                   QStringLiteral("video"), QStringLiteral("ref")};
    return media.contains(type);
}

/// The media objects below \a elem that count, each once.
inline void collectMedia(const VySmilElemBase &elem, QList<const VySmilElemBase *> &media)
{
    if (isMedium(elem.getElemType()))
        media << &elem;
    const bool isSwitch = elem.getElemType() == u"switch";
    for (const VySmilElemBase *child : *elem.getSubElements()) {
        collectMedia(*child, media);
        if (isSwitch)
            return;
    }
}

inline bool isAscii(const QString &text)
{
    return text.toUtf8().size() == text.size();
}

inline bool isSmil(const VySmilPart &part)
{
    return part.contentType.section(u';', 0, 0).trimmed().toLower() == u"application/smil";
}

inline QString brokenInSlides(const VySmilElemSmil &root, const QList<VySmilPart> &parts,
                              const VySmilSlideShow &show)
{
    const QRect whole(QPoint(0, 0), show.size);
    QSet<int> used;
    QList<const VySmilElemBase *> shown;
    for (const VySmilSlide &slide : show.slides) {
        if (slide.durationMs <= 0 || slide.instants().first() != 0 ||
            slide.instants().last() != slide.durationMs)
            return QStringLiteral("a slide without a duration");
        for (const VySmilMedium &medium : slide.media) {
            if (!medium.rect.isNull() && (medium.rect.isEmpty() || !whole.contains(medium.rect)))
                return QStringLiteral("a rectangle outside of the root layout");
            if (medium.beginMs < 0 || medium.endMs < medium.beginMs || slide.durationMs < medium.endMs)
                return QStringLiteral("times out of order");
            shown << medium.elem;
            if (medium.part >= 0)
                used << medium.part;
        }
    }
    for (int i = 0; i < parts.size(); ++i) {
        if (used.contains(i) + show.unusedParts.contains(i) + isSmil(parts.at(i)) != 1)
            return QStringLiteral("part %1 is neither used nor unused, or both").arg(i);
    }
    QList<const VySmilElemBase *> media;
    const bool hasBody = root.getSubElementCounts(QStringLiteral("body")) > 0;
    for (const VySmilElemBase *child : *root.getSubElements()) {
        if (!hasBody || child->getElemType() == u"body")
            collectMedia(*child, media);
    }
    return media == shown ? QString() : QStringLiteral("a medium in no slide, in two, or out of order");
}

/// Whether the profile can say what the slides show: a slide has a medium, and one of a sort; texts share a
/// rectangle, and so do pictures; references are in ASCII and name one part; fits are those of SMIL.
inline bool fitsProfile(const VySmilSlideShow &show)
{
    static const QStringList fits{QString(),
                                  QStringLiteral("fill"),
                                  QStringLiteral("hidden"),
                                  QStringLiteral("meet"),
                                  QStringLiteral("scroll"),
                                  QStringLiteral("slice")};
    QSet<QString> places[2];
    for (const VySmilSlide &slide : show.slides) {
        int sounds = 0;
        int shown[2] = {0, 0};
        for (const VySmilMedium &medium : slide.media) {
            const bool isText = medium.kind == VySmilMedium::MEDIUM_TEXT;
            const bool isAudio = medium.kind == VySmilMedium::MEDIUM_AUDIO;
            sounds += isAudio || medium.kind == VySmilMedium::MEDIUM_VIDEO ? 1 : 0;
            if (!isAudio) {
                ++shown[isText];
                places[isText] << mediumText(medium).section(u'"', -1).section(u' ', 1, 2);
            }
            if (medium.src.trimmed().isEmpty() || !isAscii(medium.src) ||
                medium.kind == VySmilMedium::MEDIUM_OTHER || !fits.contains(medium.fit.trimmed()))
                return false;
        }
        if (slide.media.isEmpty() || sounds > 1 || shown[0] > 1 || shown[1] > 1)
            return false;
    }
    return !show.slides.isEmpty() && places[0].size() <= 1 && places[1].size() <= 1;
}

/// What writing must keep.
inline QString keptText(const VySmilSlideShow &show)
{
    QString text;
    for (const VySmilSlide &slide : show.slides) {
        text += QStringLiteral("slide %1\n").arg(slide.durationMs);
        for (const VySmilMedium &medium : slide.media)
            text += mediumText(medium) + u'\n';
    }
    return text;
}

inline QString brokenInWriting(const QList<VySmilPart> &parts, const VySmilSlideShow &show)
{
    VySmilElemSmil tree;
    show.toTree(&tree, parts);
    QString text;
    VySmilElemSmil root;
    if (VySmilParser::assemble(&tree, text, true, nullptr, VySmil::SMIL_VER_DEFAULT) != 0 ||
        VySmilParser::parse(text, &root, true, nullptr, VySmil::SMIL_VER_DEFAULT) != 0)
        return QStringLiteral("what was written is not strict-clean");
    VySmilSlideShow again;
    again.fromTree(root, parts);
    if (keptText(again) != keptText(show) || again.size != show.size)
        return QStringLiteral("what was written shows otherwise:\n") + slidesText(show) + slidesText(again);
    for (const VySmilFinding &finding :
         VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts)) {
        if (finding.rule != VySmilFinding::RULE_SOURCE && fitsProfile(show))
            return QStringLiteral("what was written: ") + finding.toString();
    }
    return QString();
}

inline void collectElements(const VySmilElemBase &elem, QSet<const VySmilElemBase *> &all)
{
    all << &elem;
    for (const VySmilElemBase *child : *elem.getSubElements())
        collectElements(*child, all);
}

inline QString brokenInChecks(const VySmilElemSmil &root, const QList<VySmilPart> &parts)
{
    const auto lines = [](const QList<VySmilFinding> &findings) {
        QStringList all;
        for (const VySmilFinding &finding : findings)
            all << finding.toString();
        return all;
    };
    const auto strict = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts);
    if (lines(strict) != lines(VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts)))
        return QStringLiteral("two checks of the same differ");
    QSet<const VySmilElemBase *> all;
    collectElements(root, all);
    for (int i = 0; i < strict.size(); ++i) {
        const VySmilFinding &finding = strict.at(i);
        if (!all.contains(finding.elem) || !finding.toString().startsWith(finding.path + u':'))
            return QStringLiteral("a finding beyond the tree");
        if (i > 0 && strict.at(i - 1).elem == finding.elem && finding.attribute < strict.at(i - 1).attribute)
            return QStringLiteral("attributes out of order");
    }
    for (const VySmilFinding &finding :
         VySmilConformance::check(root, VySmilConformance::LEVEL_RELAXED, parts)) {
        const auto isGraver = [&finding](const VySmilFinding &other) {
            return other.rule == finding.rule && other.elem == finding.elem &&
                   other.attribute == finding.attribute && other.severity <= finding.severity;
        };
        if (std::none_of(strict.begin(), strict.end(), isGraver))
            return QStringLiteral("relaxed finds more than strict: ") + finding.toString();
    }
    return QString();
}

inline QString brokenInMessage(const VySmilElemSmil &root, const QList<VySmilPart> &parts)
{
    VySmilSlideShow show;
    const int result = show.fromTree(root, parts);
    if ((result == VySmil::RESULT_OK) == show.slides.isEmpty())
        return QStringLiteral("another result than there are slides");
    for (const QString &broken :
         {brokenInSlides(root, parts, show), brokenInWriting(parts, show), brokenInChecks(root, parts)}) {
        if (!broken.isEmpty())
            return broken;
    }
    return QString();
}

/// Whether no text of a part could be taken for one of another part.
inline bool areDistinct(const QList<VySmilPart> &parts)
{
    QSet<QString> all;
    for (const VySmilPart &part : parts) {
        QSet<QString> texts;
        for (const QString &text : {part.contentId, part.contentLocation, part.name}) {
            QString plain = QUrl::fromPercentEncoding(text.trimmed().toUtf8()).toCaseFolded();
            plain.remove(u'<').remove(u'>').remove(QStringLiteral("./")).remove(QStringLiteral("cid:"));
            if (!text.trimmed().isEmpty())
                texts << (plain.trimmed().isEmpty() ? text : plain).trimmed();
        }
        if (all.intersects(texts))
            return false;
        all += texts;
    }
    return true;
}

inline QString brokenInParts(const QList<VySmilPart> &brought)
{
    QList<VySmilPart> parts = brought;
    const VySmilSlideShow show = VySmilSlideShow::fromParts(parts);
    for (int i = 0; i < parts.size(); ++i) {
        const auto isKept = [](const QString &before, const QString &after) {
            return before.trimmed().isEmpty() || before == after;
        };
        if (!isKept(brought.at(i).contentId, parts.at(i).contentId) ||
            !isKept(brought.at(i).contentLocation, parts.at(i).contentLocation) ||
            brought.at(i).name != parts.at(i).name || brought.at(i).contentType != parts.at(i).contentType)
            return QStringLiteral("a part that was changed");
    }
    QList<int> seen = show.unusedParts;
    QSet<QString> references;
    for (const VySmilSlide &slide : show.slides) {
        for (const VySmilMedium &medium : slide.media) {
            seen << medium.part;
            references << medium.src.toCaseFolded();
            if (medium.src.isEmpty() || !isAscii(medium.src))
                return QStringLiteral("a reference that is not in ASCII: ") + medium.src;
        }
    }
    std::sort(seen.begin(), seen.end());
    if (seen.size() != parts.size() || (!seen.isEmpty() && seen.last() != parts.size() - 1))
        return QStringLiteral("a part that is neither shown nor unused, or both");
    VySmilElemSmil root;
    show.toTree(&root, parts);
    if (!areDistinct(brought))
        return brokenInMessage(root, parts);
    if (references.size() + show.unusedParts.size() != parts.size())
        return QStringLiteral("a reference for two parts");
    VySmilSlideShow again;
    again.fromTree(root, parts);
    for (int i = 0; i < show.slides.size(); ++i) {
        for (int k = 0; k < show.slides.at(i).media.size(); ++k) {
            if (again.slides.at(i).media.at(k).part != show.slides.at(i).media.at(k).part)
                return QStringLiteral("a reference to another part");
        }
    }
    const auto findings = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts);
    if (!findings.isEmpty() && fitsProfile(show))
        return QStringLiteral("slides of parts: ") + findings.first().toString();
    return brokenInMessage(root, parts);
}

#endif
