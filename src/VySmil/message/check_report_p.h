// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_CHECK_REPORT_P_H
#define VYSMIL_CHECK_REPORT_P_H

#include <VySmil/message/check_path_p.h>
#include <VySmil/message/check_rules_p.h>
#include <VySmil/model/vocabulary_p.h>

#include <QList>

namespace VySmilPrivate {

/// Takes the findings of a level: one for each rule, element and attribute, the gravest, in the order of a
/// report.
class Report
{
public:
    explicit Report(bool isStrict) : m_isStrict(isStrict) {}

    bool isStrict() const noexcept { return m_isStrict; }

    /// Adds what was found of the element that is looked at, or of its attribute \a attribute, unless the
    /// level does not mind. \a about is what the words of the finding leave open.
    void add(Found found, QStringView about = {}) { add(found, QString(), about); }
    void add(Found found, Attr attribute, QStringView about = {}) { add(found, nameOf(attribute), about); }
    void add(Found found, const QString &attribute, QStringView about);

    /// Keeps what was added as found of \a elem.
    void finish(const VySmilElemBase &elem, Path &path);

    QList<VySmilFinding> findings;

private:
    const bool m_isStrict;
    QList<VySmilFinding> m_added; // of the element that is looked at
};

} // namespace VySmilPrivate

#endif
