// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_DOCUMENT_P_H
#define VYSMIL_SHOW_DOCUMENT_P_H

#include <QStringView>

#include <vector>

class VySmilElemBase;

namespace VySmilPrivate {

/// The element outside of the vocabulary whose media play one after the other.
constexpr QStringView sequenceName = u"seq";

/// What happens on the way through a slide.
struct SlideStep
{
    enum class Kind : quint8 {
        Medium,   ///< a media object
        Par,      ///< a nested "par" begins
        Sequence, ///< a "seq" begins
        End,      ///< the container that began last ends; without an element
    };
    Kind kind;
    const VySmilElemBase *elem;
};

/// The element of a slide, and what is in it in document order.
struct SlideElements
{
    const VySmilElemBase *elem;
    bool isPar; ///< or else a media object outside of every "par"
    std::vector<SlideStep> steps;
};

/// What of a document matters to those who show it, wherever in it that stands.
struct DocumentElements
{
    const VySmilElemBase *rootLayout = nullptr; ///< the first, or null
    std::vector<const VySmilElemBase *> regions;
    std::vector<SlideElements> slides;
};

/// Finds the elements under \a root in one walk.
DocumentElements elementsOf(const VySmilElemBase &root);

} // namespace VySmilPrivate

#endif
