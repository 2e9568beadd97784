// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/check_report_p.h>
#include <VySmil/model/showntext_p.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace VySmilPrivate {

void Report::add(Found found, const QString &attribute, QStringView about)
{
    const FindingRow &row = rowOf(found);
    const FindingRow::Severity severity = m_isStrict ? row.strict : row.relaxed;
    if (!severity)
        return;
    const qsizetype gap = row.words.indexOf(u"%1");
    QString message;
    message.reserve(row.words.size() + std::min<qsizetype>(about.size(), 64));
    message += row.words.first(std::max<qsizetype>(gap, 0));
    if (gap >= 0)
        appendShown(message, about);
    message += row.words.sliced(gap < 0 ? 0 : gap + 2);
    m_added.append({row.rule, *severity, nullptr, attribute, QString(), message});
}

void Report::finish(const VySmilElemBase &elem, Path &path)
{
    if (m_added.isEmpty())
        return;
    const auto isBefore = [](const VySmilFinding &a, const VySmilFinding &b) {
        return std::tie(a.attribute, a.rule, a.severity) < std::tie(b.attribute, b.rule, b.severity);
    };
    if (m_added.size() > 1)
        std::stable_sort(m_added.begin(), m_added.end(), isBefore);
    const auto isAboutTheSame = [](const VySmilFinding &a, const VySmilFinding &b) {
        return a.attribute == b.attribute && a.rule == b.rule;
    };
    m_added.erase(std::unique(m_added.begin(), m_added.end(), isAboutTheSame), m_added.end());
    const QString where = path.text();
    for (VySmilFinding &finding : m_added) {
        finding.elem = &elem;
        finding.path = where;
        findings.append(std::move(finding));
    }
    m_added.clear();
}

} // namespace VySmilPrivate
