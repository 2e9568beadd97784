// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_EXAMPLES_SLIDES_H
#define VYSMIL_EXAMPLES_SLIDES_H

#include <VySmil/VySmil>

#include <QList>
#include <QRectF>
#include <QString>

#include <optional>

/// A part of the picture, in pixels of the root layout.
struct Region
{
    QString id;
    QString fit;
    QRectF rect;
    bool isGuessed = false; ///< the document leaves something of it out
};

/// A begin, end or duration: milliseconds where they are known from the text alone, else the text.
struct Moment
{
    std::optional<double> milliSeconds;
    QString text; ///< as it stands in the document, empty if it does not
};

/// What a slide shows or plays.
struct Media
{
    QString kind; ///< the element name
    QString src;
    int region = -1; ///< index into Slide::regions, -1 for sound
    Moment begin;
    Moment end;
    Moment dur;
};

/// One "par".
struct Slide
{
    Moment dur;
    QList<Region> regions;
    QList<Media> media;
};

struct Storyboard
{
    QSizeF size;
    bool isSizeGuessed = false;
    QList<Slide> slides;
};

/// The storyboard of the document under \a root. What the document leaves out gets a default and is marked.
Storyboard storyboardOf(const VySmilElemSmil &root);

#endif
