// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_PARTINDEX_P_H
#define VYSMIL_PARTINDEX_P_H

#include <VySmil/message/vysmilpart.h>

#include <QHash>
#include <QList>

#include <optional>

namespace VySmilPrivate {

/// Finds the part that a "src" names. In three rounds, from the texts as they stand to any letter case, the
/// fields are compared, those that fit the form of the "src" best first.
class PartIndex
{
public:
    /// What a "src" finds.
    struct Match
    {
        int part = -1;
        bool isAlone = false; ///< no other part fits in the same round
    };

    /// \a partList outlives the index, unchanged.
    explicit PartIndex(const QList<VySmilPart> &partList) : parts(partList) {}

    /// The index of the first part that fits, or -1.
    int find(const QString &src) { return match(src, false).part; }
    /// The same, and whether it alone does.
    Match match(const QString &src) { return match(src, true); }

private:
    // The parts with a text, in the order of the fields and then of the list.
    struct Entry
    {
        int first = -1;
        bool isAlone = true; // true too where there is none
    };
    using Table = QHash<QString, Entry>;
    enum Fields { LOCATIONS_AND_NAMES, IDS };

    Match match(const QString &src, bool mustSeeAll);
    const Table &table(int round, Fields fields);

    static constexpr int rounds = 3;
    const QList<VySmilPart> &parts;
    std::optional<Table> tables[rounds][2]; // made when they are needed first
};

/// How a medium refers to the part at \a index: by a content location in ASCII that finds this part, else by
/// the content id.
QString referenceTo(PartIndex &index, const QList<VySmilPart> &parts, int part);

/// A content id without any "<", ">" and blanks around it.
QStringView withoutBrackets(QStringView text);

/// Whether there is a text, of ASCII alone, and without control characters.
bool isAsciiText(QStringView text);

} // namespace VySmilPrivate

#endif
