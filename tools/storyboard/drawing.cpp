// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "drawing.h"

#include "../kindname.h"

#include <QXmlStreamWriter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// All in pixels of the picture.
constexpr double cardWidth = 260;
constexpr double maxScreenHeight = 320;
constexpr double gap = 24;
constexpr double lineHeight = 16;
constexpr double barHeight = 8;
constexpr double iconSize = 14;
constexpr int maxColumns = 5;

const char *const styleSheet =
    "text { font: 12px sans-serif; fill: #1d2433 } .title { font-weight: bold; font-size: 14px } "
    ".faint { fill: #5b6475 } .note { fill: #a33c00; font-style: italic } "
    ".card { fill: #fff; stroke: #d5d9e0 } .screen { fill: #fbfbf9; stroke: #1d2433; stroke-width: 1.5 } "
    ".medium { stroke-width: 1 } .image { fill: #dcebfa; stroke: #2f6fb0 } "
    ".video { fill: #e6e0f5; stroke: #6a4fb3 } .text { fill: #fff8df; stroke: #a8861b } "
    ".other { fill: #ececec; stroke: #666 } .audio { fill: #dff2e1; stroke: #2f7d3b } "
    ".guessed { stroke: #a33c00; stroke-dasharray: 5 3 } .icon { fill: #1d2433; fill-opacity: .75 } .large { "
    "fill-opacity: .12 } "
    ".track { fill: #eef0f3 } .tick { stroke: #5b6475 }";

QString number(double value)
{
    return QString::number(std::round(value * 100) / 100);
}

QString seconds(qint32 ms)
{
    return QString::number(ms / 1'000.0, 'g', 10);
}

// As wide as a text gets at most in the common fonts; a clip holds what is wider still.
double widthOf(const QString &text)
{
    double width = 0;
    for (const QChar c : text)
        width += c.unicode() < 0x80 ? (c.isUpper() || c == u'm' || c == u'w' ? 9.5 : 6.8) : 12;
    return width;
}

// A text of any direction keeps to itself: what is written beside it stays where it is.
QString isolated(const QString &text)
{
    return QChar(0x2068) + text + QChar(0x2069);
}

// Left out in the middle: file names tell apart by their ends.
QString elided(const QString &text, double width)
{
    if (widthOf(text) <= width)
        return isolated(text);
    qsizetype left = text.size() / 2;
    qsizetype right = text.size() - left;
    const auto joined = [&] { return text.left(left) + QChar(0x2026) + text.right(right); };
    while (left + right > 0 && widthOf(joined()) > width)
        --(left > right ? left : right);
    return isolated(joined());
}

QString nameOf(const VySmilMedium &medium)
{
    return medium.src.isEmpty() ? QStringLiteral("(no source)") : medium.src;
}

// What was guessed, in words.
QString notesOn(const VySmilMedium &medium)
{
    QStringList notes;
    if (medium.src.isEmpty() || medium.guesses.testFlag(VySmilMedium::GUESS_PART))
        notes << QStringLiteral("not in the message");
    if (medium.guesses.testFlag(VySmilMedium::GUESS_REGION))
        notes << QStringLiteral("place guessed");
    if (medium.guesses.testFlag(VySmilMedium::GUESS_TIME))
        notes << QStringLiteral("times guessed");
    return notes.join(QStringLiteral(", "));
}

// The path of an icon in a square of 14.
QString iconOf(VySmilMedium::MEDIUM_KIND kind)
{
    switch (kind) {
    case VySmilMedium::MEDIUM_IMAGE:
        return QStringLiteral("M1 12 L5 5 L8 9 L10 7 L13 12 Z M10 2 h2 v2 h-2 Z");
    case VySmilMedium::MEDIUM_TEXT:
        return QStringLiteral("M1 2 h12 v2 h-12 Z M1 6 h12 v2 h-12 Z M1 10 h8 v2 h-8 Z");
    case VySmilMedium::MEDIUM_AUDIO:
        return QStringLiteral("M1 5 h3 L8 1 V13 L4 9 H1 Z M10 4 h1.5 v6 h-1.5 Z M12.5 2 h1.5 v10 h-1.5 Z");
    case VySmilMedium::MEDIUM_VIDEO:
        return QStringLiteral("M2 1 L13 7 L2 13 Z");
    default:
        return QStringLiteral("M2 1 h7 l3 3 v9 h-10 Z");
    }
}

class Drawing
{
public:
    explicit Drawing(const VySmilSlideShow &slideShow)
        : show(slideShow),
          scale(std::min(cardWidth / slideShow.size.width(), maxScreenHeight / slideShow.size.height())),
          writer(&svg)
    {
    }

    QString draw();

private:
    using Attributes = std::initializer_list<std::pair<const char *, QString>>;

    void start(const char *name, Attributes attributes);
    void end() { writer.writeEndElement(); }
    void element(const char *name, Attributes attributes);
    void text(double x, double y, const QString &content, const char *style = "label",
              const char *anchor = "start");
    void clipTo(const QString &id, double width, double height);
    void icon(const VySmilMedium &medium, double x, double y, double size = iconSize);

    double heightOf(const VySmilSlide &slide) const;
    void drawSlide(const VySmilSlide &slide, int index);
    void drawScreen(const VySmilSlide &slide, int index);
    void drawMedium(const VySmilMedium &medium, const QString &clip, int lineOffset);
    double drawTrack(const VySmilMedium &medium, const VySmilSlide &slide, double top);
    void drawTicks(const VySmilSlide &slide, double top);

    const VySmilSlideShow &show;
    const double scale;
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
    end();
}

void Drawing::text(double x, double y, const QString &content, const char *style, const char *anchor)
{
    start("text", {{"class", QString::fromLatin1(style)},
                   {"x", number(x)},
                   {"y", number(y)},
                   {"text-anchor", QString::fromLatin1(anchor)}});
    // What XML cannot carry cannot be shown either; half a surrogate pair does not pass UTF-8.
    QString shown = QString::fromUtf8(content.toUtf8());
    std::replace_if(
        shown.begin(), shown.end(), [](QChar c) { return c < u' ' || c >= QChar(0xfffe); },
        QChar(QChar::ReplacementCharacter));
    writer.writeCharacters(shown);
    end();
}

void Drawing::clipTo(const QString &id, double width, double height)
{
    start("clipPath", {{"id", id}});
    element("rect", {{"width", number(width)}, {"height", number(height)}});
    end();
}

void Drawing::icon(const VySmilMedium &medium, double x, double y, double size)
{
    element(
        "path",
        {{"class", size > iconSize ? QStringLiteral("icon large") : QStringLiteral("icon")},
         {"d", iconOf(medium.kind)},
         {"transform",
          QStringLiteral("translate(%1 %2) scale(%3)").arg(number(x), number(y), number(size / iconSize))}});
}

QString Drawing::draw()
{
    const int count = static_cast<int>(show.slides.size());
    const int columns = std::clamp(count, 1, maxColumns);
    QList<double> rowHeights;
    for (int i = 0; i < count; ++i) {
        if (i % columns == 0)
            rowHeights << 0;
        rowHeights.last() = std::max(rowHeights.last(), heightOf(show.slides.at(i)));
    }
    const double width = gap + columns * (cardWidth + 2 * gap);
    double height = gap + lineHeight;
    for (const double rowHeight : std::as_const(rowHeights))
        height += rowHeight + gap;

    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    start("svg", {{"xmlns", QStringLiteral("http://www.w3.org/2000/svg")},
                  {"width", number(width)},
                  {"height", number(height)},
                  {"viewBox", QStringLiteral("0 0 %1 %2").arg(number(width), number(height))}});
    writer.writeTextElement(QStringLiteral("style"), QString::fromLatin1(styleSheet));
    element("rect", {{"width", QStringLiteral("100%")},
                     {"height", QStringLiteral("100%")},
                     {"fill", QStringLiteral("#f3f4f6")}});
    const bool isSizeGuessed = show.guesses.testFlag(VySmilMedium::GUESS_SIZE);
    text(gap, gap, QStringLiteral("%1 x %2 pixels").arg(show.size.width()).arg(show.size.height()), "faint");
    if (isSizeGuessed || count == 0)
        text(gap + 110, gap, count == 0 ? QStringLiteral("no slides") : QStringLiteral("size guessed"),
             "note");
    double top = gap + lineHeight;
    for (int i = 0; i < count; ++i) {
        const int column = i % columns;
        if (i > 0 && column == 0)
            top += rowHeights.at(i / columns - 1) + gap;
        start("g", {{"id", QStringLiteral("slide%1").arg(i + 1)},
                    {"transform", QStringLiteral("translate(%1 %2)")
                                      .arg(number(gap + column * (cardWidth + 2 * gap)), number(top))}});
        drawSlide(show.slides.at(i), i);
        end();
    }
    writer.writeEndDocument();
    return svg;
}

double Drawing::heightOf(const VySmilSlide &slide) const
{
    double height = 2 * lineHeight + show.size.height() * scale + 3 * lineHeight;
    for (const VySmilMedium &medium : slide.media)
        height += (notesOn(medium).isEmpty() ? 1 : 2) * lineHeight + barHeight + 4;
    return height;
}

void Drawing::drawSlide(const VySmilSlide &slide, int index)
{
    element("rect", {{"class", QStringLiteral("card")},
                     {"width", number(cardWidth + gap)},
                     {"height", number(heightOf(slide))},
                     {"rx", QStringLiteral("6")}});
    start("g", {{"transform", QStringLiteral("translate(%1 0)").arg(number(gap / 2))}});
    text(0, 1.4 * lineHeight, QString::number(index + 1), "title");
    text(cardWidth, 1.4 * lineHeight, seconds(slide.durationMs) + QStringLiteral(" s"), "faint", "end");
    if (slide.guesses.testFlag(VySmilMedium::GUESS_TIME))
        text(cardWidth / 2, 1.4 * lineHeight, QStringLiteral("duration guessed"), "note", "middle");
    drawScreen(slide, index);
    double y = 2 * lineHeight + show.size.height() * scale + 1.5 * lineHeight;
    for (const VySmilMedium &medium : slide.media)
        y = drawTrack(medium, slide, y);
    drawTicks(slide, y);
    end();
}

void Drawing::drawScreen(const VySmilSlide &slide, int index)
{
    const double left = (cardWidth - show.size.width() * scale) / 2;
    start("g", {{"transform", QStringLiteral("translate(%1 %2)").arg(number(left), number(2 * lineHeight))}});
    const bool isGuessed = show.guesses.testFlag(VySmilMedium::GUESS_SIZE);
    element("rect", {{"class", isGuessed ? QStringLiteral("screen guessed") : QStringLiteral("screen")},
                     {"width", number(show.size.width() * scale)},
                     {"height", number(show.size.height() * scale)}});
    for (int i = 0; i < slide.media.size(); ++i) {
        const VySmilMedium &medium = slide.media.at(i);
        if (medium.rect.isNull())
            continue;
        // The labels of media in one place stand below each other.
        const auto sharesPlace = [&medium](const VySmilMedium &other) { return other.rect == medium.rect; };
        const auto before = std::count_if(slide.media.begin(), slide.media.begin() + i, sharesPlace);
        drawMedium(medium, QStringLiteral("clip%1-%2").arg(index + 1).arg(i + 1), static_cast<int>(before));
    }
    end();
}

void Drawing::drawMedium(const VySmilMedium &medium, const QString &clip, int lineOffset)
{
    const double width = medium.rect.width() * scale;
    const double height = medium.rect.height() * scale;
    start("g", {{"transform", QStringLiteral("translate(%1 %2)")
                                  .arg(number(medium.rect.x() * scale), number(medium.rect.y() * scale))}});
    const bool isGuessed = medium.guesses.testFlag(VySmilMedium::GUESS_REGION);
    element("rect", {{"class", QStringLiteral("medium ") + kindName(medium.kind) +
                                   (isGuessed ? QStringLiteral(" guessed") : QString())},
                     {"width", number(width)},
                     {"height", number(height)},
                     {"fill-opacity", lineOffset > 0 ? QStringLiteral("0") : QStringLiteral("1")}});
    clipTo(clip, width, height);
    start("g", {{"clip-path", QStringLiteral("url(#%1)").arg(clip)}});
    const double placeholder = std::min(width, height) / 2;
    if (lineOffset == 0 && medium.kind != VySmilMedium::MEDIUM_TEXT && placeholder > iconSize)
        icon(medium, (width - placeholder) / 2, (height - placeholder) / 2, placeholder);
    const double y = 4 + lineOffset * lineHeight;
    // A caption that the document carries is what a person reads; else the name stands for it.
    if (medium.kind == VySmilMedium::MEDIUM_TEXT && !medium.alt.isEmpty()) {
        text(4, y + 11, elided(medium.alt, width - 8));
    } else {
        const double labelLeft = iconSize + 8;
        icon(medium, 4, y);
        const QString fit = medium.fit.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(medium.fit);
        text(labelLeft, y + 11, elided(nameOf(medium), width - labelLeft - 4 - widthOf(fit)) + fit);
    }
    end();
    end();
}

// A line with what plays, and its bar; gives where the next one begins.
double Drawing::drawTrack(const VySmilMedium &medium, const VySmilSlide &slide, double top)
{
    icon(medium, 0, top - 11);
    text(iconSize + 6, top, elided(nameOf(medium), cardWidth - iconSize - 6));
    double y = top + 4;
    if (const QString notes = notesOn(medium); !notes.isEmpty()) {
        text(iconSize + 6, top + lineHeight - 2, notes, "note");
        y += lineHeight;
    }
    const auto at = [&slide](qint32 ms) { return static_cast<double>(ms) / slide.durationMs * cardWidth; };
    element("rect", {{"class", QStringLiteral("track")},
                     {"y", number(y)},
                     {"width", number(cardWidth)},
                     {"height", number(barHeight)}});
    const bool isGuessed = medium.guesses.testFlag(VySmilMedium::GUESS_TIME);
    element("rect", {{"class", QStringLiteral("bar ") + kindName(medium.kind) +
                                   (isGuessed ? QStringLiteral(" guessed") : QString())},
                     {"x", number(at(medium.beginMs))},
                     {"y", number(y)},
                     {"width", number(at(medium.endMs) - at(medium.beginMs))},
                     {"height", number(barHeight)}});
    return y + barHeight + lineHeight;
}

void Drawing::drawTicks(const VySmilSlide &slide, double top)
{
    const double y = top - lineHeight + 2;
    const QString last = seconds(slide.durationMs) + QStringLiteral(" s");
    const auto tick = [this, y](double x) {
        element("line", {{"class", QStringLiteral("tick")},
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
            text(x, y + lineHeight, label, "faint", i > 0 ? "middle" : "start");
    }
    tick(cardWidth);
    text(cardWidth, y + lineHeight, last, "faint", "end");
}

} // namespace

QString drawingOf(const VySmilSlideShow &show)
{
    return Drawing(show).draw();
}
