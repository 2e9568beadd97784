// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "tracks.h"

#include "../names.h"
#include "lettering.h"

#include <QStringList>

#include <cmath>

namespace {

// What was guessed, in words.
QString notesOn(const VySmilMedium &medium)
{
    QStringList notes;
    if (isMissing(medium))
        notes << QStringLiteral("not in the message");
    if (medium.guesses.testFlag(VySmilMedium::GUESS_REGION))
        notes << QStringLiteral("place guessed");
    if (medium.guesses.testFlag(VySmilMedium::GUESS_TIME))
        notes << QStringLiteral("times guessed");
    return notes.join(QStringLiteral(", "));
}

// A line with what plays, and its bar; gives where the next one begins.
double drawTrack(SvgWriter &svg, const VySmilMedium &medium, const VySmilSlide &slide, double top)
{
    svg.icon(medium.kind, 0, top - 11);
    svg.text(iconSize + 6, top, elided(nameOf(medium), cardWidth - iconSize - 6));
    double y = top + 4;
    if (const QString notes = notesOn(medium); !notes.isEmpty()) {
        svg.text(iconSize + 6, top + lineHeight - 2, notes, "note");
        y += lineHeight;
    }
    const auto at = [&slide](qint32 ms) { return static_cast<double>(ms) / slide.durationMs * cardWidth; };
    svg.element("rect", {{"class", QStringLiteral("track")},
                         {"y", number(y)},
                         {"width", number(cardWidth)},
                         {"height", number(barHeight)}});
    const bool isGuessed = medium.guesses.testFlag(VySmilMedium::GUESS_TIME);
    svg.element("rect", {{"class", QStringLiteral("bar ") + shortName(medium.kind) +
                                       (isGuessed ? QStringLiteral(" guessed") : QString())},
                         {"x", number(at(medium.beginMs))},
                         {"y", number(y)},
                         {"width", number(at(slide.endOf(medium)) - at(medium.beginMs))},
                         {"height", number(barHeight)}});
    return y + barHeight + lineHeight;
}

void drawTicks(SvgWriter &svg, const VySmilSlide &slide, double y)
{
    const QString last = seconds(slide.durationMs) + QStringLiteral(" s");
    const auto tick = [&svg, y](double x) {
        svg.element("line", {{"class", QStringLiteral("tick")},
                             {"x1", number(x)},
                             {"x2", number(x)},
                             {"y1", number(y)},
                             {"y2", number(y + 4)}});
    };
    // At most five, each at a round number of seconds.
    double step = std::pow(10, std::floor(std::log10(slide.durationMs)));
    while (slide.durationMs / step > 5)
        step *= 2;
    while (slide.durationMs / step <= 2)
        step /= 2;
    for (int i = 0; i * step < slide.durationMs; ++i) {
        const double ms = i * step;
        const double x = ms / slide.durationMs * cardWidth;
        tick(x);
        const QString label = QString::number(ms / 1'000, 'g', 10);
        if (x + widthOf(label) < cardWidth - widthOf(last))
            svg.text(x, y + lineHeight, label, "faint", i > 0 ? "middle" : "start");
    }
    tick(cardWidth);
    svg.text(cardWidth, y + lineHeight, last, "faint", "end");
}

} // namespace

QString nameOf(const VySmilMedium &medium)
{
    return medium.src.isEmpty() ? QStringLiteral("(no source)") : medium.src;
}

bool isMissing(const VySmilMedium &medium)
{
    return medium.src.isEmpty() || medium.guesses.testFlag(VySmilMedium::GUESS_PART);
}

QString seconds(qint32 ms)
{
    return QString::number(ms / 1'000.0, 'g', 10);
}

double heightOfTracks(const VySmilSlide &slide)
{
    double height = 1.5 * lineHeight;
    for (const VySmilMedium &medium : slide.media)
        height += (notesOn(medium).isEmpty() ? 1 : 2) * lineHeight + barHeight + 4;
    return height;
}

void drawTracks(SvgWriter &svg, const VySmilSlide &slide)
{
    double y = 0;
    for (const VySmilMedium &medium : slide.media)
        y = drawTrack(svg, medium, slide, y);
    drawTicks(svg, slide, y - lineHeight + 2);
}
