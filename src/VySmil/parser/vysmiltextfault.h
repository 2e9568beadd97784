// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILTEXTFAULT_H
#define VYSMIL_VYSMILTEXTFAULT_H

#include <VySmil/vysmil_export.h>

#include <QObject>
#include <QString>

/// Why VySmilParser::parse() does not read a text, and where: what VySmilText::explain() gives.
///
/// \see [Reading a received message](reading.md)
class VYSMIL_EXPORT VySmilTextFault
{
    Q_GADGET
    Q_PROPERTY(REASON reason MEMBER reason)
    Q_PROPERTY(qsizetype position MEMBER position)
    Q_PROPERTY(int line MEMBER line)
    Q_PROPERTY(int column MEMBER column)
    Q_PROPERTY(QString message MEMBER message)

public:
    /// What is wrong.
    enum REASON : qint32 {
        FAULT_NONE = 0,       ///< nothing: the text is read
        FAULT_EMPTY = 1,      ///< there is nothing but white space
        FAULT_NOT_SMIL = 2,   ///< the root is another element than "smil"
        FAULT_MALFORMED = 3,  ///< it is no well-formed XML
        FAULT_DEPTH = 4,      ///< elements are nested deeper than VySmilParser::MAX_DEPTH
        FAULT_ATTRIBUTES = 5, ///< an element has more than VySmilParser::MAX_ATTRIBUTES attributes
        FAULT_DOCTYPE = 6,    ///< a document type declaration has an internal subset, or is out of place
    };
    Q_ENUM(REASON)

    REASON reason = FAULT_NONE; ///< what is wrong
    /// Where in the text: where reading stopped, or the "<" of the tag or declaration that is meant. -1 for
    /// FAULT_NONE and FAULT_EMPTY.
    qsizetype position = -1;
    int line = 0;    ///< of the position, from 1; 0 without one
    int column = 0;  ///< of the position in UTF-16 units, from 1; 0 without one
    QString message; ///< what is wrong in one line of English, or in Qt's words; empty for FAULT_NONE

    /// One line: "line 3, column 17: " and the message; without a position the message alone.
    [[nodiscard]] Q_INVOKABLE QString toString() const;

    /// Whether all fields are the same.
    bool operator==(const VySmilTextFault &other) const noexcept;
    /// Whether a field differs.
    bool operator!=(const VySmilTextFault &other) const noexcept { return !(*this == other); }
};

Q_DECLARE_TYPEINFO(VySmilTextFault, Q_RELOCATABLE_TYPE);

#endif
