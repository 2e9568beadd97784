// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/check_rules_p.h>

#include <iterator>

namespace {

using VySmilPrivate::FindingRow;
using VySmilPrivate::Found;
using Rule = VySmilFinding;

constexpr FindingRow::Severity error = VySmilFinding::SEVERITY_ERROR;
constexpr FindingRow::Severity warning = VySmilFinding::SEVERITY_WARNING;
constexpr FindingRow::Severity none = std::nullopt;

// In the order of Found: what it is, its rule, how grave it is to who sends and to who receives, and the
// words. docs/checking.md has a line for each.
// clang-format off
constexpr FindingRow findingRows[] = {
    {Found::UnknownElement, Rule::RULE_VOCABULARY, error, warning, u"is not in the vocabulary"},
    {Found::UnknownAttribute, Rule::RULE_VOCABULARY, warning, none, u"is not in the vocabulary of %1"},
    {Found::NothingToShow, Rule::RULE_STRUCTURE, error, error, u"has nothing to show"},
    {Found::NoBody, Rule::RULE_STRUCTURE, error, warning, u"has no body"},
    {Found::Misplaced, Rule::RULE_STRUCTURE, error, warning, u"does not belong into %1"},
    {Found::OneTooMany, Rule::RULE_STRUCTURE, error, warning, u"is one too many"},
    {Found::BehindBody, Rule::RULE_STRUCTURE, error, warning, u"stands behind the body"},
    {Found::BehindRegion, Rule::RULE_STRUCTURE, error, warning, u"stands behind a region"},
    {Found::NoMedia, Rule::RULE_STRUCTURE, warning, warning, u"holds no media"},
    {Found::RegionIdMissing, Rule::RULE_REGION_ID, error, warning, u"is missing"},
    {Found::RegionIdTaken, Rule::RULE_REGION_ID, error, warning, u"\"%1\" is that of an earlier region"},
    {Found::RegionIdUnusual, Rule::RULE_REGION_ID, error, none, u"\"%1\" is neither Image nor Text"},
    {Found::UnitsMixed, Rule::RULE_REGION_UNITS, error, none, u"mixes pixels and percent"},
    {Found::RootInPercent, Rule::RULE_REGION_UNITS, warning, none, u"is in percent"},
    {Found::NoSize, Rule::RULE_REGION_PLACE, error, warning, u"has no size"},
    {Found::OutsideOfRoot, Rule::RULE_REGION_PLACE, error, warning, u"is not within the root layout"},
    {Found::SecondOfItsSort, Rule::RULE_MEDIA_COUNT, error, warning, u"is a second %1 in its slide"},
    {Found::RegionTaken, Rule::RULE_MEDIA_COUNT, error, warning, u"\"%1\" is used twice in its slide"},
    {Found::DurationMissing, Rule::RULE_DURATION, warning, none, u"is missing"},
    {Found::DurationNotAboveZero, Rule::RULE_DURATION, warning, none, u"\"%1\" is no time above 0"},
    {Found::NoUnit, Rule::RULE_TIME_FORM, error, warning, u"\"%1\" has no unit"},
    {Found::InSeconds, Rule::RULE_TIME_FORM, warning, none, u"\"%1\" is in seconds instead of milliseconds"},
    {Found::NotInMilliSeconds, Rule::RULE_TIME_FORM, error, none, u"\"%1\" is not in whole milliseconds"},
    {Found::NoClockValue, Rule::RULE_TIME_FORM, error, warning, u"\"%1\" is no clock value"},
    {Found::NoLength, Rule::RULE_VALUE, error, error, u"\"%1\" does not read as a length"},
    {Found::NoTime, Rule::RULE_VALUE, error, error, u"\"%1\" does not read as a time"},
    {Found::FormOfLength, Rule::RULE_VALUE, error, none, u"\"%1\" is not of the form 50, 50px or 50%"},
    {Found::UnknownFit, Rule::RULE_VALUE, error, none, u"\"%1\" is not a fit of SMIL"},
    {Found::SourceMissing, Rule::RULE_SOURCE, error, error, u"is missing"},
    {Found::NoPart, Rule::RULE_SOURCE, error, error, u"\"%1\" names no part"},
    {Found::NotAscii, Rule::RULE_SOURCE, error, warning, u"\"%1\" is not ASCII"},
    {Found::BlankInSource, Rule::RULE_SOURCE, error, warning, u"\"%1\" has a blank or control character in it"},
    {Found::SeveralParts, Rule::RULE_SOURCE, error, warning, u"\"%1\" names several parts"},
    {Found::OtherKindOfPart, Rule::RULE_SOURCE, warning, warning, u"\"%1\" names a part of another kind"},
    {Found::RegionMissing, Rule::RULE_REGION_NAME, error, warning, u"is missing"},
    {Found::RegionUndeclared, Rule::RULE_REGION_NAME, error, warning, u"\"%1\" is not that of a region"},
    {Found::LetterCase, Rule::RULE_LETTER_CASE, error, error, u"should be called \"%1\""},
    {Found::OverAtOnce, Rule::RULE_NEVER_SHOWN, error, error, u"is never there: it ends when it begins, or before"},
    {Found::BehindItsSlide, Rule::RULE_NEVER_SHOWN, error, error, u"is never there: it begins when its slide is over"},
};
// clang-format on

constexpr bool areRowsInOrder()
{
    for (std::size_t i = 0; i < std::size(findingRows); ++i) {
        if (static_cast<std::size_t>(findingRows[i].found) != i)
            return false;
    }
    return std::size(findingRows) == static_cast<std::size_t>(Found::Count);
}
static_assert(areRowsInOrder());

} // namespace

const VySmilPrivate::FindingRow &VySmilPrivate::rowOf(Found found) noexcept
{
    return findingRows[static_cast<int>(found)];
}
