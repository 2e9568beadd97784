// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "screen.h"

#include "../names.h"
#include "tracks.h"

#include <algorithm>
#include <array>
#include <map>

namespace {

constexpr double margin = 4;

// What is transparent takes no part.
bool isSeen(const QColor &color)
{
    return color.isValid() && color.alpha() > 0;
}

// What stands out from what lies below.
QColor inkOn(const QColor &below)
{
    return isSeen(below) && qGray(below.rgb()) < 128 ? QColor(Qt::white) : QColor(0x1d, 0x24, 0x33);
}

} // namespace

Screen::Screen(SvgWriter &svg, const VySmilSlideShow &show, const Contents &contents)
    : m_svg(svg),
      m_show(show),
      m_contents(contents),
      m_scale(std::min(cardWidth / show.size.width(), maxScreenHeight / show.size.height()))
{
}

void Screen::draw(const VySmilSlide &slide, const QString &id) const
{
    const double width = m_show.size.width() * m_scale;
    m_svg.startGroup((cardWidth - width) / 2, 0);
    const bool isGuessed = m_show.guesses.testFlag(VySmilMedium::GUESS_SIZE);
    m_svg.element("rect", {{"class", isGuessed ? QStringLiteral("screen guessed") : QStringLiteral("screen")},
                           {"width", number(width)},
                           {"height", number(height())}});
    if (isSeen(m_show.background))
        m_svg.ground(width, height(), m_show.background);
    std::map<std::array<int, 4>, Place> places;
    for (int i = 0; i < slide.media.size(); ++i) {
        const QRect rect = slide.media.at(i).rect;
        if (!rect.isNull())
            drawMedium(slide.media.at(i), QStringLiteral("%1-%2").arg(id).arg(i + 1),
                       places[{rect.x(), rect.y(), rect.width(), rect.height()}]);
    }
    m_svg.end();
}

void Screen::drawMedium(const VySmilMedium &medium, const QString &id, Place &place) const
{
    const double width = medium.rect.width() * m_scale;
    const double height = medium.rect.height() * m_scale;
    const auto picture = m_contents.pictures.constFind(medium.part);
    const QString caption = captionOf(medium);
    const bool isPainted = picture != m_contents.pictures.constEnd() || !caption.isEmpty();
    const bool hasGround = isSeen(medium.background);

    m_svg.startGroup(medium.rect.x() * m_scale, medium.rect.y() * m_scale);
    if (hasGround && !place.isTaken)
        m_svg.ground(width, height, medium.background);
    QString classes = QStringLiteral("medium ") + shortName(medium.kind);
    if (isPainted)
        classes += QStringLiteral(" painted");
    if (medium.guesses.testFlag(VySmilMedium::GUESS_REGION) || isMissing(medium))
        classes += QStringLiteral(" guessed");
    const bool isFilled = !place.isTaken && !hasGround && !isPainted;
    m_svg.element("rect", {{"class", classes},
                           {"width", number(width)},
                           {"height", number(height)},
                           {"fill-opacity", isFilled ? QStringLiteral("1") : QStringLiteral("0")}});
    m_svg.startClipped(id, width, height);
    const QColor below = hasGround ? medium.background : isFilled ? QColor() : m_show.background;
    const bool hasInk = isPainted && isSeen(medium.foreground);
    m_svg.start("g", {{"color", (hasInk ? medium.foreground : inkOn(below)).name()}});
    if (picture != m_contents.pictures.constEnd())
        drawPicture(medium, *picture);
    else if (!caption.isEmpty())
        drawText(caption, medium, place);
    else
        drawIcon(medium, place);
    m_svg.end();
    m_svg.end();
    m_svg.end();
    place.isTaken = true;
}

void Screen::drawText(const QString &text, const VySmilMedium &medium, Place &place) const
{
    const double width = medium.rect.width() * m_scale;
    const double room = medium.rect.height() * m_scale - margin;
    const int maxLines = std::max(static_cast<int>(room / lineHeight), 1) - place.lines;
    if (maxLines <= 0)
        return;
    const QList<Line> lines = wrapped(text, width - 2 * margin, maxLines);
    for (const Line &line : lines)
        m_svg.line(margin, width - margin, margin + lineHeight * place.lines++ + 11, line);
}

void Screen::drawPicture(const VySmilMedium &medium, const Picture &picture) const
{
    const QSize size = medium.shownSize(picture.size());
    const QPoint corner = medium.area.topLeft() - medium.rect.topLeft();
    m_svg.picture(idOfPicture(medium.part), corner.x() * m_scale, corner.y() * m_scale,
                  size.width() * m_scale, size.height() * m_scale);
}

void Screen::drawIcon(const VySmilMedium &medium, Place &place) const
{
    const double width = medium.rect.width() * m_scale;
    const double height = medium.rect.height() * m_scale;
    const double placeholder = std::min(width, height) / 2;
    if (!place.isTaken && medium.kind != VySmilMedium::MEDIUM_TEXT && placeholder > iconSize)
        m_svg.icon(medium.kind, (width - placeholder) / 2, (height - placeholder) / 2, placeholder);
    // The labels of media in one place stand below each other.
    const double y = margin + lineHeight * place.lines++;
    const double labelLeft = iconSize + 2 * margin;
    const double labelWidth = width - labelLeft - margin;
    m_svg.icon(medium.kind, margin, y);
    const QString fit =
        medium.fit.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(elided(medium.fit, labelWidth / 3));
    m_svg.text(labelLeft, y + 11, elided(nameOf(medium), labelWidth - widthOf(fit)) + fit);
}

// What a person reads: the text, else what the document carries in its place.
QString Screen::captionOf(const VySmilMedium &medium) const
{
    if (medium.kind != VySmilMedium::MEDIUM_TEXT)
        return QString();
    const QString text = m_contents.texts.value(medium.part);
    return text.trimmed().isEmpty() ? medium.alt : text;
}

QString idOfPicture(int part)
{
    return QStringLiteral("part%1").arg(part + 1);
}
