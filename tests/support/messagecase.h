// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_MESSAGECASE_H
#define VYSMIL_TESTS_MESSAGECASE_H

#include <VySmil/VySmil>

#include <QStringList>

#include <algorithm>
#include <utility>

/// A message, and what is expected of it, as one text: a title, the document, and sections that each begin
/// behind a line "--- name". The section "parts" has a line for each part of the message: "content id |
/// content location | name | content type | milliseconds"; "options" has the screen and the default duration:
/// "100x51 2000". A document that begins with "@" is what stands in the body, below a usual head; one that
/// begins with "#" what stands in the layout, above a usual body.
struct MessageCase
{
    QString title;
    QString document;
    QList<VySmilPart> parts;
    VySmilSlideShowOptions options;
    QList<std::pair<QString, QString>> sections; // name and text, trimmed

    explicit MessageCase(const QString &text = {})
    {
        QStringList pieces = text.split(QString("\n--- "));
        title = pieces.first().section(u'\n', 0, 0);
        document = pieces.takeFirst().section(u'\n', 1);
        for (const QString &piece : std::as_const(pieces))
            sections << std::pair(piece.section(u'\n', 0, 0), piece.section(u'\n', 1).trimmed());
        for (const auto &[name, lines] : std::as_const(sections)) {
            if (name == u"parts") {
                for (const QString &line : lines.split(u'\n', Qt::SkipEmptyParts))
                    parts << partOf(line);
            } else if (name == u"options") {
                options.screen = QSize(lines.section(u'x', 0, 0).toInt(),
                                       lines.section(u'x', 1).section(u' ', 0, 0).toInt());
                options.defaultDurationMs = lines.section(u' ', 1).toInt();
            }
        }
    }

    /// The cases of a file, each behind "=== ".
    static QList<MessageCase> casesOf(const QString &text)
    {
        QList<MessageCase> cases;
        for (const QString &piece : QString(u'\n' + text).split(QString("\n=== "), Qt::SkipEmptyParts))
            cases << MessageCase(piece);
        return cases;
    }

    QString section(const QString &wanted) const
    {
        for (const auto &[name, lines] : sections) {
            if (name == wanted)
                return lines;
        }
        return {};
    }

    /// The text that gives this case.
    QString toText() const
    {
        QString text = QString("=== ") + title + u'\n' + document;
        for (const auto &[name, lines] : sections)
            text += QString("\n--- ") + name + (lines.isEmpty() ? QString() : u'\n' + lines);
        return text + u'\n';
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
        VySmilPart part;
        part.contentId = fields.value(0);
        part.contentLocation = fields.value(1);
        part.name = fields.value(2);
        part.contentType = fields.value(3);
        bool isNumber = false;
        const int ms = fields.value(4).toInt(&isNumber);
        part.durationMs = isNumber ? ms : -1;
        return part;
    }
};

inline QString guessText(VySmilMedium::GUESSES guesses)
{
    static const char *const names[] = {"size", "region", "time", "part", "screen"};
    QString text;
    for (int i = 0; i < 5; ++i) {
        if (guesses.testFlag(VySmilMedium::GUESS_FLAG(1 << i)))
            text += u' ' + QString::fromLatin1(names[i]) + u'?';
    }
    return text;
}

inline QString colorText(const char *name, const QColor &color)
{
    return color.isValid()
               ? QString(" %1 %2").arg(QString::fromLatin1(name),
                                       color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb))
               : QString();
}

inline QString rectText(const QRect &rect)
{
    return QString("%1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

/// What writing keeps of a medium that is shown in SMIL's ways.
inline QString mediumText(const VySmilMedium &medium)
{
    static const char *const kinds[] = {"image", "text", "audio", "video", "other"};
    QString text = QString("%1 \"%2\"").arg(QString::fromLatin1(kinds[medium.kind]), medium.src);
    if (!medium.alt.isEmpty())
        text += QString(" alt \"%1\"").arg(medium.alt);
    if (!medium.rect.isNull())
        text += u' ' + rectText(medium.rect);
    text += QString(" %1-").arg(medium.beginMs);
    return medium.endMs == -1 ? text : text + QString::number(medium.endMs);
}

/// A slide show as text: the size, each slide with its duration, and each medium with what it is, its place
/// (and the whole area where that was cut), its times (no end: with the slide), its part, its region (and
/// behind
/// "@" the one that it got), its fit and its colours; guesses with a "?".
inline QString slidesText(const VySmilSlideShow &show)
{
    QString text = QString("%1x%2").arg(show.size.width()).arg(show.size.height()) +
                   colorText("on", show.background) + guessText(show.guesses);
    for (const VySmilSlide &slide : show.slides) {
        text += QString("\nslide %1").arg(slide.durationMs) + guessText(slide.guesses);
        for (const VySmilMedium &medium : slide.media) {
            text += QString("\n ") + mediumText(medium);
            if (medium.area != medium.rect)
                text += QString(" of ") + rectText(medium.area);
            if (medium.part >= 0)
                text += QString(" part %1").arg(medium.part);
            if (!medium.region.isEmpty())
                text += QString(" in ") + medium.region;
            const QString place =
                medium.regionElem ? medium.regionElem->getAttribute(QString("id")) : QString();
            if (place != medium.region && !place.isEmpty())
                text += " @" + place;
            if (!medium.fit.isEmpty())
                text += u' ' + medium.fit;
            text += colorText("on", medium.background) + colorText("in", medium.foreground) +
                    guessText(medium.guesses);
        }
    }
    for (const int part : show.unusedParts)
        text += QString("\nunused part %1").arg(part);
    return text;
}

/// What both levels find as a line each: how grave it is strictly and relaxed ("E", "W" or "-"), the rule and
/// the text.
inline QString findingsText(const VySmilElemSmil &root, const QList<VySmilPart> &parts = {})
{
    QList<VySmilFinding> relaxed = VySmilConformance::check(root, VySmilConformance::LEVEL_RELAXED, parts);
    QStringList lines;
    const auto add = [&lines](int strictly, int relaxedly, const VySmilFinding &finding) {
        lines << QString("EW-").mid(strictly, 1) + QString("EW-").mid(relaxedly, 1) +
                     QString::number(finding.rule) + u' ' + finding.toString();
    };
    for (const VySmilFinding &finding :
         VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT, parts)) {
        const auto same = std::find_if(relaxed.begin(), relaxed.end(), [&](const VySmilFinding &other) {
            return other.elem == finding.elem && other.rule == finding.rule &&
                   other.toString() == finding.toString();
        });
        add(finding.severity, same == relaxed.end() ? 2 : int(same->severity), finding);
        if (same != relaxed.end())
            relaxed.erase(same);
    }
    for (const VySmilFinding &finding : std::as_const(relaxed))
        add(2, finding.severity, finding);
    return lines.join(u'\n');
}

#endif
