// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILSLIDESHOW_H
#define VYSMIL_VYSMILSLIDESHOW_H

#include <VySmil/message/vysmilpart.h>
#include <VySmil/message/vysmilslide.h>
#include <VySmil/message/vysmilslideshowoptions.h>

class VySmilElemSmil;

/// What a message shows: its slides, each medium with its part, its place and its times.
///
/// Works on any tree, however deep or odd, in time linear in the elements and parts.
///
/// \see [Showing a received message](showing.md), [Composing a message](composing.md)
class VYSMIL_EXPORT VySmilSlideShow
{
    Q_GADGET
    Q_PROPERTY(QSize size MEMBER size)
    Q_PROPERTY(QList<VySmilSlide> slides MEMBER slides)
    Q_PROPERTY(QList<int> unusedParts MEMBER unusedParts)
    Q_PROPERTY(QColor background MEMBER background)
    Q_PROPERTY(VySmilMedium::GUESSES guesses MEMBER guesses)

public:
    QSize size;                    ///< of the root layout, in pixels
    QList<VySmilSlide> slides;     ///< in document order
    QList<int> unusedParts;        ///< parts that no medium uses, ascending: a messenger shows them below
    QColor background;             ///< of the root layout; invalid where the document says nothing
    VySmilMedium::GUESSES guesses; ///< GUESS_SIZE, with or without GUESS_SCREEN, or nothing

    /// Finds out what the document under \a root shows, and replaces what the object held.
    ///
    /// *Slides.* The outermost "par" is a slide wherever it stands in a "body"; a media object outside of
    /// every "par" is a slide of its own. A slide has all media objects below it. Of a "switch" the first
    /// child alone counts.
    ///
    /// *Parts.* A "src" is compared with the texts of the parts as they are, then with %XX decoded and
    /// without a leading "./", then in any letter case; "cid:" prefers the content id, all else the content
    /// location and the name. The SMIL itself is left out.
    ///
    /// *Places.* The region that is named, exactly or in any letter case; else "Text" or "Image"; else all of
    /// the root layout, or, where a slide of the message has a text and a picture, the texts below and the
    /// rest above. Sound has none.
    ///
    /// *Times.* Clock values, offsets and bare numbers (seconds, as phones take them) are known. A slide
    /// without a "dur" lasts as long as its media, or the default. A medium ends with its slide where nothing
    /// else is known. In a "seq" each begins where the one before it ends. Times beyond the end of the slide
    /// are cut to it.
    ///
    /// The pointers of slides and media point into the tree, as long as that stays as it is.
    ///
    /// \return VySmil::RESULT_OK, or VySmil::RESULT_UNUSABLE if there is no slide.
    int fromTree(const VySmilElemSmil &root, const QList<VySmilPart> &parts = {},
                 const VySmilSlideShowOptions &options = {});

    /// Makes slides of \a parts in their order, and replaces what the object held: a picture or video, a text
    /// and a sound go together until one of a sort comes again. Parts of other types are unused. Media refer
    /// to parts by what VySmilPart::nameAll() gave them, or what they brought.
    ///
    /// \return VySmil::RESULT_OK, or VySmil::RESULT_UNUSABLE if there is no slide.
    int fromParts(const QList<VySmilPart> &parts, const VySmilSlideShowOptions &options = {});

    /// Splits each slide that has two media of one sort (pictures and videos; texts; sounds and videos), so
    /// that none has: two pictures with two captions become two slides. Each lasts as long as the longest of
    /// its media did, and these are there for all of it: begins and ends are lost, and a sound is heard in
    /// one of the slides alone.
    void splitSlides();

    /// Gives every picture, video and text the default place and its fit, and all others none.
    void layOut();

    /// Replaces the children of \a root by a document that shows these slides: whole pixels, whole
    /// milliseconds, the regions "Image" and "Text" and as many more as there are rectangles. Of a head the
    /// "meta" elements stay; attributes that the root does not take go. It is strict-clean, and fromTree()
    /// with the same \a parts gives the same durations, kinds, parts, places and times again. For null
    /// nothing happens.
    ///
    /// Colours are not written, and each visual medium gets the name of its region. Where its size is that of
    /// a screen (GUESS_SCREEN), the regions are in percent.
    ///
    /// \a parts are those that the media count in "part". A "src" that does not name that part alone, in
    /// printable ASCII, is replaced by a reference of the part that does, if it has one; so call
    /// VySmilPart::nameAll() before, where the message is to be sent.
    ///
    /// Where these slides come from the tree of \a root itself, every "elem" and "regionElem" dangles then:
    /// write into a tree of its own while they are needed.
    void toTree(VySmilElemSmil *root, const QList<VySmilPart> &parts = {}) const;

    /// Whether all fields but the pointers are the same, of slides and media too.
    bool operator==(const VySmilSlideShow &other) const noexcept;
    /// Whether a field but the pointers differs.
    bool operator!=(const VySmilSlideShow &other) const noexcept { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(VySmilSlideShow, Q_RELOCATABLE_TYPE);

#endif
