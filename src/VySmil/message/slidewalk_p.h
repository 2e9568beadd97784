// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SLIDEWALK_P_H
#define VYSMIL_SLIDEWALK_P_H

#include <vector>

class VySmilElemBase;

namespace VySmilPrivate {

/// A media object of a slide.
struct MediumElement
{
    const VySmilElemBase *elem;
    int before; ///< index of the medium in the slide which comes before it in a "seq", or -1
};

/// The element of a slide, and its media objects.
struct SlideElements
{
    const VySmilElemBase *elem;
    std::vector<MediumElement> media;
};

/// The slides of the document under \a root, in document order.
std::vector<SlideElements> slidesOf(const VySmilElemBase &root);

} // namespace VySmilPrivate

#endif
