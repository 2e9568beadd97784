// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_MESSAGECASE_H
#define VYSMIL_TESTS_MESSAGECASE_H

#include <VySmil/VySmil>

#include <QMetaEnum>
#include <QStringList>

#include <algorithm>

/// A message as one text: a title, the document, and sections that each begin behind a line "--- name". The
/// section "parts" has a line for each part of the message: "content id | content location | name | content
/// type | milliseconds"; "options" has the screen and the default duration: "100x51 2000". A document that
/// begins with "@" is what stands in the body, below a usual head; one that begins with "#" what stands in
/// the layout, above a usual body.
struct MessageCase
{
    QString document;
    QList<VySmilPart> parts;
    VySmilSlideShowOptions options;

    explicit MessageCase(const QString &text = {})
    {
        QStringList sections = text.split("\n--- ");
        document = sections.takeFirst().section(u'\n', 1);
        for (const QString &section : std::as_const(sections)) {
            const QStringList lines = section.trimmed().split(u'\n', Qt::SkipEmptyParts);
            for (const QString &line : lines.mid(1)) {
                const QStringList numbers = QString(line).replace(u'x', u' ').split(u' ');
                if (lines.first() == "parts")
                    parts << partOf(line);
                else if (lines.first() == "options")
                    options = {QSize(numbers[0].toInt(), numbers.value(1).toInt()), numbers.value(2).toInt()};
            }
        }
    }

    /// The texts of the cases of a file, each behind "=== ".
    static QStringList textsIn(const QString &file)
    {
        QStringList texts;
        for (const QString &text : QString(u'\n' + file).split("\n=== ", Qt::SkipEmptyParts))
            texts << text.trimmed();
        return texts;
    }

    /// The whole document.
    QString smil() const
    {
        const QString frame("<smil><head><layout>%1</layout></head><body>%2</body></smil>");
        if (document.startsWith(u'@'))
            return frame.arg("<root-layout width='200' height='100'/>"
                             "<region id='Image' width='200' height='80' fit='meet'/>"
                             "<region id='Text' top='80' height='20' fit='scroll'/>",
                             document.mid(1));
        return document.startsWith(u'#')
                   ? frame.arg(document.mid(1), "<par dur='9000ms'><audio src='a'/></par>")
                   : document;
    }

    static VySmilPart partOf(const QString &line)
    {
        const QStringList fields = line.split(u'|');
        return {fields.value(0), fields.value(1), fields.value(2), fields.value(3),
                fields.size() > 4 ? fields[4].toInt() : -1};
    }
};

inline QString guessText(VySmilMedium::GUESSES guesses)
{
    const QString keys = QMetaEnum::fromType<VySmilMedium::GUESSES>().valueToKeys(guesses);
    return guesses ? QString(u'|' + keys).replace("|GUESS_", "? ").toLower().mid(1) + u'?' : QString();
}

inline QString colorText(const char *name, const QColor &color)
{
    const auto format = color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb;
    return color.isValid() ? name + color.name(format) : QString();
}

inline QString rectText(const QRect &rect)
{
    return QString("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

/// What writing keeps of a medium that is shown in SMIL's ways.
inline QString mediumText(const VySmilMedium &medium)
{
    const QString kind = QMetaEnum::fromType<VySmilMedium::MEDIUM_KIND>().valueToKey(medium.kind);
    return kind.mid(7).toLower() + " \"" + medium.src + u'"' +
           (medium.alt.isEmpty() ? "" : " alt \"" + medium.alt + u'"') +
           (medium.rect.isNull() ? "" : u' ' + rectText(medium.rect)) + QString(" %1-").arg(medium.beginMs) +
           (medium.endMs == -1 ? "" : QString::number(medium.endMs));
}

/// A slide show as text: the size, each slide with its duration, and each medium with what it is, its place
/// (and the whole area where that was cut), its times (no end: with the slide), its part, its region (and
/// behind "@" the one that it got), its fit and its colours; guesses with a "?".
inline QString slidesText(const VySmilSlideShow &show)
{
    QString text = QString("%1x%2").arg(show.size.width()).arg(show.size.height()) +
                   colorText(" on ", show.background) + guessText(show.guesses);
    for (const VySmilSlide &slide : show.slides) {
        text += QString("\nslide %1").arg(slide.durationMs) + guessText(slide.guesses);
        for (const VySmilMedium &medium : slide.media) {
            const QString place = medium.regionElem ? medium.regionElem->getAttribute("id") : QString();
            text += "\n " + mediumText(medium);
            text += medium.area == medium.rect ? "" : " of " + rectText(medium.area);
            text += medium.part < 0 ? "" : QString(" part %1").arg(medium.part);
            text += medium.region.isEmpty() ? "" : " in " + medium.region;
            text += place == medium.region || place.isEmpty() ? "" : " @" + place;
            text += (medium.fit.isEmpty() ? "" : u' ' + medium.fit) + colorText(" on ", medium.background) +
                    colorText(" in ", medium.foreground) + guessText(medium.guesses);
        }
    }
    for (const int part : show.unusedParts)
        text += QString("\nunused part %1").arg(part);
    return text;
}

/// What is found as a line each: how grave it is strictly and relaxed ("E", "W" or "-"), the rule and the
/// text.
inline QString findingsText(const VySmilElemSmil &root, const QList<VySmilPart> &parts = {})
{
    const auto relaxed = VySmilConformance::check(root, VySmilConformance::LEVEL_RELAXED, parts);
    QStringList lines;
    for (const auto &finding : VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts)) {
        const auto same = std::find_if(relaxed.begin(), relaxed.end(), [&](const VySmilFinding &other) {
            return other.elem == finding.elem && other.rule == finding.rule &&
                   other.toString() == finding.toString();
        });
        lines << QString("EW-").mid(finding.severity, 1) +
                     QString("EW-").mid(same == relaxed.end() ? 2 : int(same->severity), 1) +
                     QString::number(finding.rule) + u' ' + finding.toString();
    }
    return lines.join(u'\n');
}

#endif
