// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_MESSAGECASE_H
#define VYSMIL_TESTS_MESSAGECASE_H

#include <VySmil/VySmil>

#include <QHash>
#include <QStringList>

/// A message, and what is expected of it, as one text: the document, and sections that each begin behind a
/// line
/// "--- name". The section "parts" has a line for each part of the message: "content id | content location |
/// name | content type | milliseconds".
struct MessageCase
{
    QString document;
    QList<VySmilPart> parts;
    QHash<QString, QString> sections; // trimmed

    explicit MessageCase(const QString &text)
    {
        QStringList pieces = text.split(QStringLiteral("\n--- "));
        document = pieces.takeFirst();
        for (const QString &piece : pieces)
            sections.insert(piece.section(u'\n', 0, 0), piece.section(u'\n', 1).trimmed());
        for (const QString &line : sections.value(QStringLiteral("parts")).split(u'\n', Qt::SkipEmptyParts))
            parts << partOf(line);
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
    static const char *const names[] = {"size", "region", "time", "part"};
    QString text;
    for (int i = 0; i < 4; ++i) {
        if (guesses.testFlag(VySmilMedium::GUESS_FLAG(1 << i)))
            text += u' ' + QString::fromLatin1(names[i]) + u'?';
    }
    return text;
}

inline QString mediumText(const VySmilMedium &medium)
{
    static const char *const kinds[] = {"image", "text", "audio", "video", "other"};
    QString text = QStringLiteral("%1 \"%2\"").arg(QString::fromLatin1(kinds[medium.kind]), medium.src);
    if (!medium.alt.isEmpty())
        text += QStringLiteral(" alt \"%1\"").arg(medium.alt);
    const QRect &rect = medium.rect;
    if (!rect.isNull())
        text +=
            QStringLiteral(" %1,%2 %3x%4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
    return text + QStringLiteral(" %1-%2").arg(medium.beginMs).arg(medium.endMs);
}

/// A slide show as text: the size, each slide with its duration, and each medium with what it is, its place,
/// its times, its part, its region and its fit; guesses with a "?".
inline QString slidesText(const VySmilSlideShow &show)
{
    QString text =
        QStringLiteral("%1x%2").arg(show.size.width()).arg(show.size.height()) + guessText(show.guesses);
    for (const VySmilSlide &slide : show.slides) {
        text += QStringLiteral("\nslide %1").arg(slide.durationMs) + guessText(slide.guesses);
        for (const VySmilMedium &medium : slide.media) {
            text += QStringLiteral("\n ") + mediumText(medium);
            if (medium.part >= 0)
                text += QStringLiteral(" part %1").arg(medium.part);
            if (!medium.region.isEmpty())
                text += QStringLiteral(" in %1").arg(medium.region);
            if (!medium.fit.isEmpty())
                text += u' ' + medium.fit;
            text += guessText(medium.guesses);
        }
    }
    for (const int part : show.unusedParts)
        text += QStringLiteral("\nunused part %1").arg(part);
    return text;
}

#endif
