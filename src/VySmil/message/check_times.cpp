// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/check_subjects_p.h>
#include <VySmil/message/check_text_p.h>
#include <VySmil/message/show_layout_p.h>
#include <VySmil/message/show_time_p.h>

namespace {

using VySmilPrivate::Found;
using VySmilPrivate::KnownTime;

// Whether a time that is known is a number and nothing else: "5", "2.5", "1e3".
bool isBareNumber(QStringView text)
{
    const auto isInNumber = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; };
    return isInNumber(text.front()) && isInNumber(text.back()) && !text.contains(u':');
}

// What is wrong with the form of a time that is there, whether or not it reads. \a mayBeOpen says that
// "indefinite" is the same as nothing.
std::optional<Found> faultOf(const QString &text, bool mayBeOpen)
{
    // So many digits always read.
    const bool isInMilliSeconds = VySmilPrivate::isDigitsBefore(text, u"ms");
    if (isInMilliSeconds && text.size() < 20)
        return std::nullopt;
    const KnownTime time = VySmilPrivate::knownTime(text);
    if (!time.isReadable)
        return Found::NoTime;
    if (isInMilliSeconds)
        return std::nullopt;
    if (time.isKnown && isBareNumber(text))
        return Found::NoUnit;
    if (VySmilPrivate::isDigitsBefore(text, u"s"))
        return Found::InSeconds;
    return time.isKnown || (time.isIndefinite && mayBeOpen) ? Found::NotInMilliSeconds : Found::NoClockValue;
}

} // namespace

namespace VySmilPrivate {

void checkTime(Elem name, Attr attr, const QString &text, Report &report)
{
    const bool mayBeOpen = attr != Attr::Begin && mediumKindOf(name) != MediumKind::None;
    if (const auto fault = faultOf(text, mayBeOpen))
        report.add(*fault, attr, text);
}

void checkDuration(const VySmilElemBase &par, Report &report)
{
    const QString text = textOf(par, Attr::Dur).trimmed();
    const KnownTime time = knownTime(text);
    if (!time.isThere)
        report.add(Found::DurationMissing, Attr::Dur);
    else if (!time.isKnown || time.ms <= 0)
        report.add(Found::DurationNotAboveZero, Attr::Dur, text);
}

} // namespace VySmilPrivate
