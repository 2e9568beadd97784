// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_EXAMPLES_DRAWING_H
#define VYSMIL_EXAMPLES_DRAWING_H

#include "slides.h"

/// A self-contained SVG of \a board: its slides from left to right, each with a time line below.
QString drawingOf(const Storyboard &board);

#endif
