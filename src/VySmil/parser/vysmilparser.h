// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILPARSER_H
#define VYSMIL_VYSMILPARSER_H

#include <VySmil/model/vysmilelemsmil.h>

/// Reads whole documents into a tree, and writes trees as whole documents (W3C SMIL 2.0, in the profile of
/// multimedia messages).
///
/// \see [Reading a received message](reading.md), [Results and findings](findings.md), [Limits and hostile
/// input](limits.md)
class VYSMIL_EXPORT VySmilParser
{
public:
    /// The greatest depth at which parse() takes elements; the root is at depth 1.
    static constexpr int MAX_DEPTH = 256;
    /// The greatest number of attributes that parse() takes on one element.
    static constexpr int MAX_ATTRIBUTES = 256;

    /// Reads a document into a root, whose children it replaces and whose attributes it adds to.
    ///
    /// Whatever stands before the first "<smil" is left out. A text that exceeds the bounds above or holds a
    /// document type declaration with an internal subset is refused as malformed, at a cost in proportion to
    /// its length.
    ///
    /// \param text the document
    /// \param root what it is read into; stays the caller's
    /// \param strict stop at the first finding; otherwise findings are recorded, and all is read
    /// \param status set to VySmil::STATUS_OK first, then gets each finding, unless it is null
    /// \param version whose vocabulary is applied
    /// \return VySmil::RESULT_OK;
    ///         VySmil::RESULT_UNUSABLE for a null root or a blank text, with the tree untouched, and for a
    ///         root tag other than "smil"; VySmil::RESULT_MALFORMED for what is no XML or is refused, with a
    ///         root without children; else what VySmilElemBase::fromDomElem() gives, with what was complete
    ///         before the fault kept.
    static int parse(const QString &text, VySmilElemSmil *root, bool strict = false,
                     VySmil::STATUS_CODE *status = nullptr,
                     VySmil::SMIL_VERSION version = VySmil::SMIL_VER_DEFAULT);

    /// Appends the document under \a root to \a out: see VySmilElemBase::toString(). Neither \a out nor
    /// \a status is cleared first.
    ///
    /// \return VySmil::RESULT_UNUSABLE for a null root, with nothing changed; else what toString() gives.
    static int assemble(const VySmilElemSmil *root, QString &out, bool strict = false,
                        VySmil::STATUS_CODE *status = nullptr,
                        VySmil::SMIL_VERSION version = VySmil::SMIL_VER_DEFAULT);
};

#endif
