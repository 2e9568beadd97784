// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_CHECK_RULES_P_H
#define VYSMIL_CHECK_RULES_P_H

#include <VySmil/message/vysmilfinding.h>

#include <QStringView>

#include <optional>

namespace VySmilPrivate {

/// What a check can find; check_rules.cpp has a row for each.
enum class Found : quint8 {
    UnknownElement,
    UnknownAttribute,
    NothingToShow,
    NoBody,
    Misplaced,
    OneTooMany,
    BehindBody,
    BehindRegion,
    NoMedia,
    RegionIdMissing,
    RegionIdTaken,
    RegionIdUnusual,
    UnitsMixed,
    RootInPercent,
    NoSize,
    OutsideOfRoot,
    SecondOfItsSort,
    RegionTaken,
    DurationMissing,
    DurationNotAboveZero,
    NoUnit,
    InSeconds,
    NotInMilliSeconds,
    NoClockValue,
    NoLength,
    NoTime,
    FormOfLength,
    UnknownFit,
    SourceMissing,
    NoPart,
    NotAscii,
    BlankInSource,
    SeveralParts,
    OtherKindOfPart,
    RegionMissing,
    RegionUndeclared,
    LetterCase,
    OverAtOnce,
    BehindItsSlide,
    Count, ///< of those above
};

/// What is told of something found.
struct FindingRow
{
    using Severity = std::optional<VySmilFinding::SEVERITY>; // nothing where a level does not mind

    Found found;
    VySmilFinding::RULE rule;
    Severity strict;
    Severity relaxed;
    QStringView words; ///< behind the name of the attribute; "%1" stands for what it is about
};

const FindingRow &rowOf(Found found) noexcept;

} // namespace VySmilPrivate

#endif
