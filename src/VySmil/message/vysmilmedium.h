// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILMEDIUM_H
#define VYSMIL_VYSMILMEDIUM_H

#include <VySmil/message/vysmilpart.h>

#include <QColor>
#include <QFlags>
#include <QRect>
#include <QSize>

class VySmilElemBase;

/// One thing that a slide shows or plays.
///
/// A picture is drawn from the upper left corner of "area", as large as shownSize() says, and clipped to
/// "rect"; media of one slide are drawn in their order.
///
/// \see [Showing a received message](showing.md)
class VYSMIL_EXPORT VySmilMedium
{
    Q_GADGET
    Q_PROPERTY(MEDIUM_KIND kind MEMBER kind)
    Q_PROPERTY(QString src MEMBER src)
    Q_PROPERTY(QString alt MEMBER alt)
    Q_PROPERTY(QString region MEMBER region)
    Q_PROPERTY(QString fit MEMBER fit)
    Q_PROPERTY(int part MEMBER part)
    Q_PROPERTY(QRect rect MEMBER rect)
    Q_PROPERTY(QRect area MEMBER area)
    Q_PROPERTY(QColor background MEMBER background)
    Q_PROPERTY(QColor foreground MEMBER foreground)
    Q_PROPERTY(qint32 beginMs MEMBER beginMs)
    Q_PROPERTY(qint32 endMs MEMBER endMs)
    Q_PROPERTY(VySmilMedium::GUESSES guesses MEMBER guesses)

public:
    /// What a medium is.
    enum MEDIUM_KIND : qint32 {
        MEDIUM_IMAGE = 0, ///< a picture
        MEDIUM_TEXT = 1,  ///< a text
        MEDIUM_AUDIO = 2, ///< sound alone
        MEDIUM_VIDEO = 3, ///< moving pictures, with sound
        MEDIUM_OTHER = 4, ///< anything else: a contact, an appointment, a file
    };
    Q_ENUM(MEDIUM_KIND)
    /// What the document left open and was filled in. A client may show or log it; nothing is dropped for it.
    enum GUESS_FLAG : qint32 {
        GUESS_SIZE = 1,    ///< the size of the root layout
        GUESS_REGION = 2,  ///< where a medium is shown
        GUESS_TIME = 4,    ///< a begin, end or duration
        GUESS_PART = 8,    ///< parts were given, and none fits
        GUESS_SCREEN = 16, ///< beside GUESS_SIZE: both sides are those of the screen
    };
    Q_ENUM(GUESS_FLAG)
    /// Any of them together.
    Q_DECLARE_FLAGS(GUESSES, GUESS_FLAG)
    Q_FLAG(GUESSES)

    MEDIUM_KIND kind = MEDIUM_OTHER; ///< by the MIME type of the part, else by the element
    QString src;                     ///< as it stands in the document
    QString alt;                     ///< as it stands in the document
    QString region;                  ///< as it stands in the document, whether declared or not
    QString fit;                     ///< that of the region which gives the rectangle, or of a default place
    int part = -1;                   ///< the index of the part that "src" names
    QRect rect;                      ///< what is seen of it, in pixels of the root layout; null for sound
    QRect area;         ///< its region before that is cut to the root layout: what a picture is scaled to
    QColor background;  ///< of its region; invalid where the document says nothing
    QColor foreground;  ///< of a text; invalid where the document says nothing
    qint32 beginMs = 0; ///< from the start of the slide
    qint32 endMs = -1;  ///< from the start of the slide; -1: with the slide
    GUESSES guesses;    ///< of this medium alone
    const VySmilElemBase *elem = nullptr;       ///< where it comes from, or null; lives as long as the tree
    const VySmilElemBase *regionElem = nullptr; ///< where its place comes from, likewise

    /// A medium that shows or plays \a part of \a parts: kind, part and "src" are filled in, and "fit" is
    /// "meet" for pictures and videos and "scroll" for texts. An empty one if there is no such part. Looks at
    /// all parts, since "src" is to name this one alone; who needs many has VySmilSlideShow::fromParts().
    [[nodiscard]] static VySmilMedium ofPart(const QList<VySmilPart> &parts, int part);

    /// How large a picture of the size \a natural is drawn in "area", by "fit" (W3C SMIL 2.0, Layout): "fill"
    /// is as large as the area; "slice" is scaled to cover it; "hidden" and "scroll" stay as large as they
    /// are; all else is scaled to fit in, as "meet" is. Each side has 1 to 65,535 pixels, rounded half up.
    /// Empty if \a natural or the area is.
    [[nodiscard]] Q_INVOKABLE QSize shownSize(const QSize &natural) const noexcept;

    /// Whether all fields but the pointers are the same.
    bool operator==(const VySmilMedium &other) const noexcept;
    /// Whether a field but the pointers differs.
    bool operator!=(const VySmilMedium &other) const noexcept { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(VySmilMedium, Q_RELOCATABLE_TYPE);
Q_DECLARE_OPERATORS_FOR_FLAGS(VySmilMedium::GUESSES)

#endif
