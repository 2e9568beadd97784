// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_SCREEN_H
#define VYSMIL_TOOLS_SCREEN_H

#include "contents.h"
#include "svgwriter.h"

/// Draws what the screen of a phone shows during a slide.
class Screen
{
public:
    Screen(SvgWriter &svg, const VySmilSlideShow &show, const Contents &contents);

    double height() const { return m_show.size.height() * m_scale; }
    /// The screen of \a slide in the middle of a card; \a id begins the names of what it needs.
    void draw(const VySmilSlide &slide, const QString &id) const;

private:
    /// What has been drawn in one place.
    struct Place
    {
        bool isTaken = false;
        int lines = 0;
    };

    void drawMedium(const VySmilMedium &medium, const QString &id, Place &place) const;
    void drawText(const QString &text, const VySmilMedium &medium, Place &place) const;
    void drawPicture(const VySmilMedium &medium, const Picture &picture) const;
    void drawIcon(const VySmilMedium &medium, Place &place) const;
    QString captionOf(const VySmilMedium &medium) const;

    SvgWriter &m_svg;
    const VySmilSlideShow &m_show;
    const Contents &m_contents;
    const double m_scale;
};

/// The name of the picture that a part holds.
QString idOfPicture(int part);

#endif
