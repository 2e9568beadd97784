// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILCONFORMANCE_H
#define VYSMIL_VYSMILCONFORMANCE_H

#include <VySmil/message/vysmilfinding.h>
#include <VySmil/message/vysmilpart.h>

#include <QList>

class VySmilElemSmil;

/// Finds what other phones and gateways will trip over (OMA MMS Conformance Document 1.2, SMIL, and what real
/// messages taught). The sizes of parts and messages are not looked at.
///
/// \see [Checking a message before it is sent](checking.md)
class VYSMIL_EXPORT VySmilConformance
{
    Q_GADGET

public:
    /// Who asks.
    enum CONFORMANCE_LEVEL : qint32 {
        LEVEL_STRICT = 0,  ///< who sends: all that the profile asks for
        LEVEL_RELAXED = 1, ///< who receives: what others will not show, or otherwise
    };
    Q_ENUM(CONFORMANCE_LEVEL)

    /// What is found in the document under \a root, whose parts are \a parts, if they are given. In document
    /// order, of an element first what is about itself, then about its attributes in the order of their
    /// names; one finding per rule, element and attribute, the gravest. Works on any tree, in linear time.
    /// Each finding points to its element, as long as the tree stays as it is.
    [[nodiscard]] static QList<VySmilFinding> check(const VySmilElemSmil &root, CONFORMANCE_LEVEL level,
                                                    const QList<VySmilPart> &parts = {});
};

#endif
