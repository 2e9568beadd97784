// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TOOLS_DRAWING_H
#define VYSMIL_TOOLS_DRAWING_H

#include "contents.h"

/// A self-contained SVG of \a show: a card for each slide, with the screen to scale and a time line below.
/// What was guessed is dashed, and said in a line of its own; of \a parts that no slide shows there is a
/// list. Takes time in proportion to the media and \a contents, however long names and texts are.
QByteArray drawingOf(const VySmilSlideShow &show, const QList<VySmilPart> &parts = {},
                     const Contents &contents = {});

#endif
