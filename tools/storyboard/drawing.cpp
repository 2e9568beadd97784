// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "drawing.h"

#include "lettering.h"
#include "screen.h"
#include "tracks.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int maxColumns = 5;
constexpr double headHeight = 2 * lineHeight;
constexpr qsizetype maxUnused = 12;

double heightOfCard(const VySmilSlide &slide, const Screen &screen)
{
    return headHeight + screen.height() + 1.5 * lineHeight + heightOfTracks(slide);
}

void drawCard(SvgWriter &svg, const VySmilSlide &slide, int index, const Screen &screen)
{
    svg.element("rect", {{"class", QStringLiteral("card")},
                         {"width", number(cardWidth + gap)},
                         {"height", number(heightOfCard(slide, screen))},
                         {"rx", QStringLiteral("6")}});
    svg.startGroup(gap / 2, 0);
    svg.text(0, 1.4 * lineHeight, QString::number(index + 1), "title");
    svg.text(cardWidth, 1.4 * lineHeight, seconds(slide.durationMs) + QStringLiteral(" s"), "faint", "end");
    if (slide.guesses.testFlag(VySmilMedium::GUESS_TIME))
        svg.text(cardWidth / 2, 1.4 * lineHeight, QStringLiteral("duration guessed"), "note", "middle");
    svg.startGroup(0, headHeight);
    screen.draw(slide, QStringLiteral("clip%1").arg(index + 1));
    svg.end();
    svg.startGroup(0, headHeight + screen.height() + 1.5 * lineHeight);
    drawTracks(svg, slide);
    svg.end();
    svg.end();
}

void drawHead(SvgWriter &svg, const VySmilSlideShow &show)
{
    const QString size = QStringLiteral("%1 x %2 pixels").arg(show.size.width()).arg(show.size.height());
    svg.text(gap, gap, size, "faint");
    if (show.slides.isEmpty())
        svg.text(gap + widthOf(size), gap, QStringLiteral("no slides"), "note");
    else if (show.guesses.testFlag(VySmilMedium::GUESS_SIZE))
        svg.text(gap + widthOf(size), gap, QStringLiteral("size guessed"), "note");
}

double heightOfUnused(const VySmilSlideShow &show)
{
    const qsizetype lines = std::min(show.unusedParts.size(), maxUnused + 1);
    return lines == 0 ? 0 : static_cast<double>(lines + 1) * (lineHeight + 2) + gap / 2;
}

// The parts that no slide shows, below all slides, as a messenger has them.
void drawUnused(SvgWriter &svg, const VySmilSlideShow &show, const QList<VySmilPart> &parts)
{
    if (show.unusedParts.isEmpty())
        return;
    double y = lineHeight;
    svg.text(0, y, QStringLiteral("on no slide:"), "note");
    const qsizetype count = std::min(show.unusedParts.size(), maxUnused);
    for (qsizetype i = 0; i < count; ++i) {
        y += lineHeight + 2;
        const int part = show.unusedParts.at(i);
        const VySmilMedium medium = VySmilMedium::ofPart(parts, part);
        svg.icon(medium.kind, 0, y - 11);
        svg.text(iconSize + 6, y, elided(parts.value(part).name, cardWidth));
    }
    if (count < show.unusedParts.size())
        svg.text(iconSize + 6, y + lineHeight + 2,
                 QStringLiteral("and %1 more").arg(show.unusedParts.size() - count), "faint");
}

void definePictures(SvgWriter &svg, const Contents &contents)
{
    if (contents.pictures.isEmpty())
        return;
    QList<int> parts = contents.pictures.keys();
    std::sort(parts.begin(), parts.end());
    svg.start("defs", {});
    for (const int part : std::as_const(parts))
        svg.definePicture(idOfPicture(part), *contents.pictures.constFind(part));
    svg.end();
}

} // namespace

QByteArray drawingOf(const VySmilSlideShow &show, const QList<VySmilPart> &parts, const Contents &contents)
{
    SvgWriter svg;
    const Screen screen(svg, show, contents);
    const int count = static_cast<int>(show.slides.size());
    const int columns = std::clamp(count, 1, maxColumns);
    // Where each row of cards begins, and the last one ends.
    QList<double> tops{gap + lineHeight};
    for (int first = 0; first < count; first += columns) {
        double height = 0;
        for (int i = first; i < std::min(first + columns, count); ++i)
            height = std::max(height, heightOfCard(show.slides.at(i), screen));
        tops << tops.last() + height + gap;
    }
    svg.startPicture(gap + columns * (cardWidth + 2 * gap), tops.last() + heightOfUnused(show));
    definePictures(svg, contents);
    drawHead(svg, show);
    for (int i = 0; i < count; ++i) {
        svg.startGroup(gap + i % columns * (cardWidth + 2 * gap), tops.at(i / columns),
                       QStringLiteral("slide%1").arg(i + 1));
        drawCard(svg, show.slides.at(i), i, screen);
        svg.end();
    }
    svg.startGroup(gap, tops.last());
    drawUnused(svg, show, parts);
    svg.end();
    return svg.finished();
}
