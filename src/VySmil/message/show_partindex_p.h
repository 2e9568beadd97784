// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_SHOW_PARTINDEX_P_H
#define VYSMIL_SHOW_PARTINDEX_P_H

#include <VySmil/message/vysmilpart.h>

#include <QHash>

#include <optional>

namespace VySmilPrivate {

/// Finds the part that a "src" names. In three rounds, from the texts as they stand to any letter case, the
/// fields are compared, those that fit the form of the "src" best first. The SMIL itself is never found.
class PartIndex
{
public:
    /// What a "src" finds.
    struct Match
    {
        int part = -1;
        bool isAlone = false; ///< no other part fits in the same round and field
    };

    /// \a parts outlives the index, unchanged.
    explicit PartIndex(const QList<VySmilPart> &parts) : m_parts(parts) {}

    /// The first part that fits, and whether it alone does.
    Match find(const QString &src) const;

private:
    enum class Field { Location, Name, Id };
    using Table = QHash<QString, Match>;

    const Table &table(int round, Field field) const;

    static constexpr int rounds = 3;
    const QList<VySmilPart> &m_parts;
    mutable std::optional<Table> m_tables[rounds][3]; // made when they are needed first
};

/// A content id without any "<", ">" and blanks around it.
QStringView withoutBrackets(QStringView text) noexcept;

/// Whether there is a text, of the characters "!" to "~" alone: what a reference may be written in.
bool isPrintableAscii(QStringView text) noexcept;

} // namespace VySmilPrivate

#endif
