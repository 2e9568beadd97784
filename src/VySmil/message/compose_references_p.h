// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_COMPOSE_REFERENCES_P_H
#define VYSMIL_COMPOSE_REFERENCES_P_H

#include <VySmil/message/show_partindex_p.h>

#include <vector>

namespace VySmilPrivate {

/// Finds the texts by which media refer to parts. A good reference is written in "!" to "~" and fits one part
/// alone.
class References
{
public:
    /// \a parts outlives the references, unchanged.
    explicit References(const QList<VySmilPart> &parts);

    /// Whether \a src is a good reference to \a part.
    bool isGood(const QString &src, int part) const;
    /// The same, of a \a src that finds \a match.
    static bool isGood(const QString &src, PartIndex::Match match, int part) noexcept;
    /// A good reference to \a part: by its content location, else its content id, else its name; empty if
    /// there is none.
    QString goodFor(int part) const;
    /// The same; else one of these with all but "!" to "~" percent-encoded, which fits \a part alone, or at
    /// least finds it; empty if none does.
    QString of(int part) const;

    const PartIndex &index() const noexcept { return m_index; }

private:
    const QList<VySmilPart> &m_parts;
    PartIndex m_index;
    mutable std::vector<std::optional<QString>> m_good; // found when they are needed first
};

} // namespace VySmilPrivate

#endif
