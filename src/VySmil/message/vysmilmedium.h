// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILMEDIUM_H
#define VYSMIL_VYSMILMEDIUM_H

#include <VySmil/vysmil_export.h>

#include <QFlags>
#include <QRect>
#include <QString>

class VySmilElemBase;

/// One thing that a slide shows or plays.
///
/// \see [Showing a received message](showing.md)
class VYSMIL_EXPORT VySmilMedium
{
public:
    /// What a medium is.
    enum MEDIUM_KIND : qint32 {
        MEDIUM_IMAGE = 0, ///< a picture
        MEDIUM_TEXT = 1,  ///< a text
        MEDIUM_AUDIO = 2, ///< sound alone
        MEDIUM_VIDEO = 3, ///< moving pictures, with sound
        MEDIUM_OTHER = 4, ///< anything else: a contact, an appointment, a file
    };
    /// What the document left open and was filled in. A client may show or log it; nothing is dropped for it.
    enum GUESS_FLAG : qint32 {
        GUESS_SIZE = 1,   ///< the size of the root layout
        GUESS_REGION = 2, ///< where a medium is shown
        GUESS_TIME = 4,   ///< a begin, end or duration
        GUESS_PART = 8,   ///< parts were given, and none fits
    };
    /// Any of them together.
    Q_DECLARE_FLAGS(GUESSES, GUESS_FLAG)

    MEDIUM_KIND kind = MEDIUM_OTHER;      ///< by the MIME type of the part, else by the element
    QString src;                          ///< as it stands in the document
    QString alt;                          ///< as it stands in the document
    QString region;                       ///< as it stands in the document, whether declared or not
    QString fit;                          ///< that of the region which gives the rectangle, else empty
    int part = -1;                        ///< the index of the part that "src" names
    QRect rect;                           ///< in pixels of the root layout; null where nothing is shown
    qint32 beginMs = 0;                   ///< from the start of the slide
    qint32 endMs = 0;                     ///< from the start of the slide, not before the begin
    GUESSES guesses;                      ///< of this medium alone
    const VySmilElemBase *elem = nullptr; ///< where it comes from, or null; lives as long as the tree
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VySmilMedium::GUESSES)

#endif
