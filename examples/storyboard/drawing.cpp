// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "drawing.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double slideWidth = 260; // of a drawn slide; the height follows from the root layout
constexpr double margin = 20;
constexpr double lineHeight = 16;
constexpr double trackHeight = 22;
constexpr double defaultDuration = 5'000; // of a slide that names none and whose media name none

QString number(double value)
{
    return QString::number(std::round(value * 100) / 100);
}

class Drawing
{
public:
    explicit Drawing(const Storyboard &storyboard)
        : board(storyboard),
          scale(slideWidth / storyboard.size.width()),
          slideHeight(std::min(storyboard.size.height() * scale, 4 * slideWidth)),
          writer(&svg)
    {
    }

    QString draw();

private:
    using Attributes = std::initializer_list<std::pair<const char *, QString>>;

    void start(const char *name, Attributes attributes);
    void element(const char *name, Attributes attributes);
    void text(double x, double y, const QString &content, const char *style = "label");
    void drawSlide(const Slide &slide, int index, double left);
    void drawRegion(const Slide &slide, int index);
    void drawTimeLine(const Slide &slide, double top);

    const Storyboard &board;
    const double scale;
    const double slideHeight;
    QString svg;
    QXmlStreamWriter writer;
};

void Drawing::start(const char *name, Attributes attributes)
{
    writer.writeStartElement(QString::fromLatin1(name));
    for (const auto &[key, value] : attributes)
        writer.writeAttribute(QString::fromLatin1(key), value);
}

void Drawing::element(const char *name, Attributes attributes)
{
    start(name, attributes);
    writer.writeEndElement();
}

void Drawing::text(double x, double y, const QString &content, const char *style)
{
    start("text", {{"class", style}, {"x", number(x)}, {"y", number(y)}});
    QString shown = content;
    // What XML cannot carry cannot be shown either.
    std::replace_if(
        shown.begin(), shown.end(), [](QChar c) { return c < u' ' || c >= QChar(0xfffe); },
        QChar(QChar::ReplacementCharacter));
    writer.writeCharacters(shown);
    writer.writeEndElement();
}

QString Drawing::draw()
{
    qsizetype tracks = 1;
    for (const Slide &slide : board.slides)
        tracks = std::max(tracks, slide.media.size());
    const double width =
        margin + static_cast<double>(std::max<qsizetype>(1, board.slides.size())) * (slideWidth + margin);
    const double height = slideHeight + static_cast<double>(tracks) * trackHeight + 6 * lineHeight;

    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    start("svg", {{"xmlns", QStringLiteral("http://www.w3.org/2000/svg")},
                  {"width", number(width)},
                  {"height", number(height)},
                  {"viewBox", QStringLiteral("0 0 %1 %2").arg(number(width), number(height))}});
    writer.writeTextElement(
        QStringLiteral("style"),
        QStringLiteral("text { font: 11px sans-serif; fill: #222 } .title { font-weight: bold } "
                       ".note { fill: #a40; font-style: italic } .screen { fill: #fff; stroke: #222 } "
                       ".region { fill: #4a90d9; fill-opacity: .12; stroke: #4a90d9 } "
                       ".guessed { stroke: #a40; stroke-dasharray: 4 3 } .badge { fill: #fc6 } "
                       ".axis { stroke: #222 } .bar { fill: #7bb662 } .open { fill-opacity: .4 }"));
    element("rect", {{"width", QStringLiteral("100%")},
                     {"height", QStringLiteral("100%")},
                     {"fill", QStringLiteral("#f4f4f2")}});
    if (board.slides.isEmpty())
        text(margin, 2 * lineHeight, QStringLiteral("no slides"), "note");
    for (int i = 0; i < board.slides.size(); ++i)
        drawSlide(board.slides.at(i), i, margin + i * (slideWidth + margin));
    writer.writeEndDocument();
    return svg;
}

void Drawing::drawSlide(const Slide &slide, int index, double left)
{
    const QString clip = QStringLiteral("screen%1").arg(index + 1);
    start("g", {{"id", QStringLiteral("slide%1").arg(index + 1)},
                {"transform", QStringLiteral("translate(%1 0)").arg(number(left))}});
    text(0, lineHeight, QStringLiteral("Slide %1").arg(index + 1), "title");
    text(60, lineHeight, slide.dur.text.isEmpty() ? QStringLiteral("(no duration)") : slide.dur.text,
         slide.dur.text.isEmpty() ? "note" : "label");

    start("g", {{"transform", QStringLiteral("translate(0 %1)").arg(number(1.5 * lineHeight))}});
    start("clipPath", {{"id", clip}});
    element("rect", {{"width", number(slideWidth)}, {"height", number(slideHeight)}});
    writer.writeEndElement();
    element("rect",
            {{"class", board.isSizeGuessed ? QStringLiteral("screen guessed") : QStringLiteral("screen")},
             {"width", number(slideWidth)},
             {"height", number(slideHeight)}});
    start("g", {{"clip-path", QStringLiteral("url(#%1)").arg(clip)}});
    for (int i = 0; i < slide.regions.size(); ++i)
        drawRegion(slide, i);
    double badgeLeft = 4;
    for (const Media &media : slide.media) {
        if (media.region >= 0)
            continue;
        element("circle", {{"class", QStringLiteral("badge")},
                           {"cx", number(badgeLeft + 8)},
                           {"cy", number(slideHeight - 12)},
                           {"r", QStringLiteral("8")}});
        text(badgeLeft + 4, slideHeight - 8, QStringLiteral("\u266a %1").arg(media.src), "audio");
        badgeLeft += slideWidth / 2;
    }
    writer.writeEndElement();
    writer.writeEndElement();

    double below = slideHeight + 2.5 * lineHeight;
    if (board.isSizeGuessed)
        text(0, below,
             QStringLiteral("size of the display not given, drawn as %1 x %2")
                 .arg(board.size.width())
                 .arg(board.size.height()),
             "note");
    drawTimeLine(slide, below + lineHeight / 2);
    writer.writeEndElement();
}

void Drawing::drawRegion(const Slide &slide, int index)
{
    const Region &region = slide.regions.at(index);
    const double x = region.rect.x() * scale;
    const double y = region.rect.y() * scale;
    element("rect",
            {{"class", region.isGuessed ? QStringLiteral("region guessed") : QStringLiteral("region")},
             {"x", number(x)},
             {"y", number(y)},
             {"width", number(region.rect.width() * scale)},
             {"height", number(region.rect.height() * scale)}});
    const QString name = region.id.isEmpty() ? QStringLiteral("(no region)") : region.id;
    text(x + 4, y + 12, region.fit.isEmpty() ? name : QStringLiteral("%1 [%2]").arg(name, region.fit),
         region.isGuessed ? "note" : "title");
    double line = y + 12 + lineHeight;
    for (const Media &media : slide.media) {
        if (media.region != index)
            continue;
        text(x + 4, line, QStringLiteral("%1: %2").arg(media.kind, media.src), "media");
        line += lineHeight;
    }
}

void Drawing::drawTimeLine(const Slide &slide, double top)
{
    // The line is as long as the slide; where that is not known, as its media.
    double total = slide.dur.milliSeconds.value_or(0);
    for (const Media &media : slide.media) {
        if (total > 0 && slide.dur.milliSeconds)
            break;
        const double begin = media.begin.milliSeconds.value_or(0);
        total =
            std::max({total, begin + media.dur.milliSeconds.value_or(0), media.end.milliSeconds.value_or(0)});
    }
    if (total <= 0)
        total = defaultDuration;

    double y = top;
    for (const Media &media : slide.media) {
        const bool isBeginKnown = media.begin.text.isEmpty() || media.begin.milliSeconds;
        QStringList notes{media.src};
        for (const auto &[name, moment] :
             {std::pair("begin", media.begin), std::pair("end", media.end), std::pair("dur", media.dur)}) {
            if (!moment.text.isEmpty())
                notes << QStringLiteral("%1=%2").arg(QLatin1String(name), moment.text);
        }
        if (isBeginKnown) {
            const double begin = std::min(media.begin.milliSeconds.value_or(0), total);
            // What ends first ends it: its own end, or its duration; without either the slide does.
            double end = total;
            if (media.dur.milliSeconds)
                end = std::min(end, begin + *media.dur.milliSeconds);
            if (media.end.milliSeconds)
                end = std::min(end, *media.end.milliSeconds);
            const bool isOpen = !media.dur.milliSeconds && !media.end.milliSeconds;
            element("rect", {{"class", isOpen ? QStringLiteral("bar open") : QStringLiteral("bar")},
                             {"x", number(begin / total * slideWidth)},
                             {"y", number(y)},
                             {"width", number(std::max(0.0, end - begin) / total * slideWidth)},
                             {"height", number(trackHeight - 4)}});
        }
        text(4, y + 13, notes.join(QStringLiteral("  ")), isBeginKnown ? "track" : "note");
        y += trackHeight;
    }
    element("line", {{"class", QStringLiteral("axis")},
                     {"x1", QStringLiteral("0")},
                     {"x2", number(slideWidth)},
                     {"y1", number(y)},
                     {"y2", number(y)}});
    text(0, y + 12, QStringLiteral("0"));
    text(slideWidth - 50, y + 12, QStringLiteral("%1 s").arg(total / 1'000),
         slide.dur.milliSeconds ? "label" : "note");
}

} // namespace

QString drawingOf(const Storyboard &board)
{
    return Drawing(board).draw();
}
