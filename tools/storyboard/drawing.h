// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_DRAWING_H
#define VYSMIL_TOOLS_DRAWING_H

#include <VySmil/message/vysmilslideshow.h>

/// A self-contained SVG of \a show: a card for each slide, with the screen to scale and a time line below.
/// What was guessed is dashed, and said in a line of its own.
QString drawingOf(const VySmilSlideShow &show);

#endif
