// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILSLIDESHOW_H
#define VYSMIL_VYSMILSLIDESHOW_H

#include <VySmil/message/vysmilpart.h>
#include <VySmil/message/vysmilslide.h>

#include <QSize>

class VySmilElemSmil;

/// What a slide show takes for what its document does not say. A number of 0 or less means its default.
///
/// \see [Showing a received message](showing.md)
class VYSMIL_EXPORT VySmilSlideShowOptions
{
public:
    QSize screen{320, 480};          ///< for a document without a size of its own, in pixels
    qint32 defaultDurationMs = 5000; ///< of a slide for which nothing else gives a duration
};

/// What a message shows: its slides, each medium with its part, its place and its times.
///
/// Works on any tree, however deep or odd, in time linear in the elements and parts.
///
/// \see [Showing a received message](showing.md), [Composing a message](composing.md)
class VYSMIL_EXPORT VySmilSlideShow
{
public:
    QSize size;                    ///< of the root layout, in pixels
    QList<VySmilSlide> slides;     ///< in document order
    QList<int> unusedParts;        ///< parts that no medium uses, ascending: a messenger shows them below
    VySmilMedium::GUESSES guesses; ///< GUESS_SIZE, or nothing

    /// Finds out what the document under \a root shows, and replaces what the object held.
    ///
    /// *Slides.* The outermost "par" is a slide wherever it stands in a "body"; a media object outside of
    /// every "par" is a slide of its own. A slide has all media objects below it. Of a "switch" the first
    /// child alone counts.
    ///
    /// *Parts.* A "src" is compared with the texts of the parts as they are, then with %XX decoded and
    /// without a leading "./", then in any letter case; "cid:" prefers the content id, all else the content
    /// location and the name. Parts of type application/smil are left out.
    ///
    /// *Places.* The region that is named, exactly or in any letter case; else "Text" or "Image"; else all of
    /// the root layout, or, where a slide has a text and a picture, the text below and the picture above.
    /// Sound has none.
    ///
    /// *Times.* Clock values, offsets and bare numbers (seconds, as phones take them) are known. A slide
    /// without a "dur" lasts as long as its media, or the default. A medium ends with its slide where nothing
    /// else is known.
    ///
    /// \return VySmil::RESULT_OK, or VySmil::RESULT_UNUSABLE if there is no slide.
    int fromTree(const VySmilElemSmil &root, const QList<VySmilPart> &parts = {},
                 const VySmilSlideShowOptions &options = {});

    /// Replaces the children of \a root by a document that shows these slides: whole pixels, whole
    /// milliseconds, the regions "Image" and "Text" and as many more as there are rectangles. It is
    /// strict-clean, and fromTree() with the same \a parts gives the same durations, kinds, sources, places
    /// and times again. The attributes of the root stay; for null nothing happens.
    void toTree(VySmilElemSmil *root, const QList<VySmilPart> &parts = {}) const;

    /// Slides for \a parts in their order: a picture or video, a text and a sound go together until one of a
    /// sort comes again. Parts of other types stay out, as unused.
    ///
    /// A part that no text of its own refers to in ASCII gets a content id and a content location where it
    /// has none, made from its name and unique in the list; nothing else of a part changes.
    static VySmilSlideShow fromParts(QList<VySmilPart> &parts, const VySmilSlideShowOptions &options = {});
};

#endif
