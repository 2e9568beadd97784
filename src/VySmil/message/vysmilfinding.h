// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VYSMILFINDING_H
#define VYSMIL_VYSMILFINDING_H

#include <VySmil/vysmil_export.h>

#include <QObject>
#include <QString>

class VySmilElemBase;

/// One thing that a check of a message found: where, against which rule, and how grave it is.
///
/// \see [Checking a message before it is sent](checking.md)
class VYSMIL_EXPORT VySmilFinding
{
    Q_GADGET
    Q_PROPERTY(RULE rule MEMBER rule)
    Q_PROPERTY(SEVERITY severity MEMBER severity)
    Q_PROPERTY(QString attribute MEMBER attribute)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(QString message MEMBER message)

public:
    /// What is asked of a message that all phones can show (OMA MMS Conformance Document 1.2, SMIL).
    enum RULE : qint32 {
        RULE_VOCABULARY = 0,   ///< elements and attributes are those of the message profile
        RULE_STRUCTURE = 1,    ///< elements stand where the profile has them, and there is something to show
        RULE_REGION_ID = 2,    ///< regions are called "Image" and "Text", once each
        RULE_REGION_UNITS = 3, ///< a region is in pixels or in percent throughout
        RULE_REGION_PLACE = 4, ///< a region has a size and lies within the root layout
        RULE_MEDIA_COUNT = 5,  ///< a slide has one picture, text and sound, each in a region of its own
        RULE_DURATION = 6,     ///< a slide says how long it lasts
        RULE_TIME_FORM = 7,    ///< times are whole milliseconds: "5000ms"
        RULE_VALUE = 8,        ///< lengths and times read, and values are among those that SMIL has
        RULE_SOURCE = 9,       ///< a medium names exactly one part, in ASCII
        RULE_REGION_NAME = 10, ///< what is shown names a region that is declared
        RULE_LETTER_CASE = 11, ///< names are in lower case
        RULE_NEVER_SHOWN = 12, ///< a medium is there for some time
    };
    Q_ENUM(RULE)
    /// How grave a finding is.
    enum SEVERITY : qint32 {
        SEVERITY_ERROR = 0,   ///< some phones lose what this is about
        SEVERITY_WARNING = 1, ///< some phones show it otherwise
    };
    Q_ENUM(SEVERITY)

    RULE rule = RULE_VOCABULARY;          ///< what it is about
    SEVERITY severity = SEVERITY_ERROR;   ///< how grave it is
    const VySmilElemBase *elem = nullptr; ///< where it is; lives as long as the tree
    QString attribute;                    ///< of that element, there or missing; empty for the element itself
    QString path;                         ///< to the element: "body/par[2]/img"; "smil" for the root
    QString message;                      ///< what was found, in English

    /// One line without control characters, whatever the document holds: path, attribute if there is one, and
    /// what was found.
    [[nodiscard]] Q_INVOKABLE QString toString() const;

    /// Whether all fields but the pointer are the same.
    bool operator==(const VySmilFinding &other) const noexcept;
    /// Whether a field but the pointer differs.
    bool operator!=(const VySmilFinding &other) const noexcept { return !(*this == other); }
};
Q_DECLARE_TYPEINFO(VySmilFinding, Q_RELOCATABLE_TYPE);

#endif
