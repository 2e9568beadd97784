// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_TRACKS_H
#define VYSMIL_TOOLS_TRACKS_H

#include "svgwriter.h"

#include <VySmil/message/vysmilslide.h>

/// What stands for a medium in words.
QString nameOf(const VySmilMedium &medium);

/// Whether the message does not have what the medium refers to.
bool isMissing(const VySmilMedium &medium);

/// In seconds.
QString seconds(qint32 ms);

/// The time line of a slide: a line and a bar for each medium, and a scale below.
double heightOfTracks(const VySmilSlide &slide);
void drawTracks(SvgWriter &svg, const VySmilSlide &slide);

#endif
