// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMIL_H
#define VYSMIL_VYSMIL_H

#include <VySmil/vysmil_export.h>

#include <QtGlobal>

/// Scope of the enums that the whole library shares, and of the value types.
///
/// Every value type reads a text with fromString(), which gives RESULT_OK (also for a blank text, which means
/// no value) or RESULT_UNUSABLE, and prints with toString(), which never fails. Reading ignores blanks at
/// both ends, stores each field as soon as it has read it and rolls nothing back: what a failed read leaves
/// is documented with each type, since clients keep it. A number that fails leaves 0 in an integer field, and
/// in a float field the number that the text begins with, or 0. No reading or printing depends on the locale
/// of the user.
///
/// All enums have the underlying type qint32 and may hold a number outside their list, for instance the
/// number of a SMIL version that this library does not know.
class VYSMIL_EXPORT VySmil
{
public:
    /// The finding that reading and writing report through an optional out-parameter.
    ///
    /// A later finding overwrites an earlier one, so after a run that was not strict the variable holds the
    /// last finding of the walk in document order. Only VySmilParser::parse() resets it.
    enum STATUS_CODE : qint32 {
        STATUS_OK = 0,              ///< nothing found
        STATUS_INVALID_ELEMENT = 1, ///< an element name is not in the vocabulary of the version
        STATUS_INVALID_ATTR = 2,    ///< an attribute name is not one that its element accepts
    };

    /// The SMIL version whose vocabulary is applied. Under a version that the library does not know no
    /// element name is valid.
    enum SMIL_VERSION : qint32 {
        SMIL_VER_DEFAULT = 0, ///< the small profile of multimedia messages
    };

    /// What the document operations and every fromString() return. They are declared to return int.
    enum RESULT_CODE : qint32 {
        RESULT_OK = 0,              ///< done; findings may stand in the status if the run was not strict
        RESULT_INVALID_ELEMENT = 1, ///< strict run stopped: see STATUS_INVALID_ELEMENT
        RESULT_INVALID_ATTR = 2,    ///< strict run stopped: see STATUS_INVALID_ATTR
        RESULT_UNUSABLE = 3,   ///< no root, no text, a tag that does not fit its element, or a bad value text
        RESULT_MALFORMED = -1, ///< the text is not well-formed XML, or exceeds the bounds of VySmilParser
        RESULT_NO_OBJECT = -2, ///< the heap is exhausted: a child element could not be created
    };

    /// How the number of a length, size or coordinate is meant.
    enum UNIT_KIND : qint32 {
        UNIT_PIXELS = 0,  ///< whole pixels
        UNIT_PERCENT = 1, ///< a percentage
        UNIT_NONE = 2,    ///< no value
    };

    /// How the number of a media length or bandwidth is meant.
    enum NUMBER_KIND : qint32 {
        NUMBER_ABSOLUTE = 0, ///< the number itself
        NUMBER_PERCENT = 1,  ///< a percentage
        NUMBER_NONE = 2,     ///< no value
    };

    class VyCount;
    class VyIndex;
    class VyMediaLength;
    class VyBandWidth;
    class VyLength;
    class VySize;
    class VyCoords;
    class VyColor;
    class VyTimeCount;
    class VyTimeFullClock;
    class VyTimePartialClock;
    class VyTimeClock;
    class VyTimeOffset;
    class VyTimeSmpte;
    class VyTimeSycBase;
    class VyTimeEvent;
    class VyTimeRepeat;
    class VyTimeAccessKey;
    class VyTimeMediaMarker;
    class VyWallClockSyncTime;
    class VyTime;
};

#endif
