// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_DRAWINGGROWTH_H
#define VYSMIL_TESTS_DRAWINGGROWTH_H

#include "growth.h"

#include "../../tools/storyboard/drawing.h"

/// What the library and storyboard do with a message.
inline std::vector<GrowthOperation> growthOperationsAndDrawing()
{
    std::vector<GrowthOperation> all = growthOperations();
    all.emplace_back("drawing", [](const Grown &grown) { (void)drawingOf(grown.show); });
    return all;
}

#endif
