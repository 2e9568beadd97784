// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMIL_H
#define VYSMIL_VYSMIL_H

#include <VySmil/vysmil_export.h>

#include <QtGlobal>

/// Scope of the enums that the whole library shares.
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
};

#endif
