// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Any text may be read by any value type. What is printed after a good read reads back and prints the same.

#include "fuzzcheck.h"

#include <VySmil/VySmil>

namespace {

// Texts that print in a way that does not read back to the same, as documented with the types.
bool isExempt(const VySmil::VyWallClockSyncTime &time)
{
    // A "Z" right behind the date is taken for the character that parts date and time, and without a date
    // there is nothing to read it from. Numbers of more than their two digits no longer fit their place, nor
    // do dates outside of four digits; no reading gives either, but fields stay from earlier reads.
    const bool isDateOnly = time.hours == 0 && time.minutes == 0 && time.seconds < 1e-7F;
    // A fraction of a second that six decimals cannot show is printed as no seconds, which are then left out.
    const bool losesSeconds = time.seconds >= 1e-7F && time.seconds <= 5e-7F;
    return losesSeconds || (isDateOnly && time.utc && time.offsetHours == 0 && time.offsetMinutes == 0);
}
bool isExempt(const VySmil::VyTimeOffset &offset)
{
    // A printed exponent has a sign of its own, which matters to those who look for the sign of an offset.
    return offset.clock.toString().contains(u'e');
}
bool isExempt(const VySmil::VyTimeSycBase &time)
{
    return isExempt(time.offset);
}
bool isExempt(const VySmil::VyTimeEvent &time)
{
    // A "-" in the name cuts it before a negative offset that is printed with an exponent's "+".
    return isExempt(time.offset);
}
bool isExempt(const VySmil::VyTimeRepeat &time)
{
    // A "." or the keyword inside of a trimmed id would be read as part of another value.
    return time.id.contains(u'.') || time.id.contains(u'(') || time.id.trimmed() != time.id;
}
bool isExempt(const VySmil::VyTimeAccessKey &)
{
    return false;
}
template <typename Value>
bool isExempt(const Value &)
{
    return false;
}
bool isExempt(const VySmil::VyTime &time)
{
    switch (time.timeType) {
    case VySmil::VyTime::TIME_SYNCBASE:
    case VySmil::VyTime::TIME_EVENT:
    case VySmil::VyTime::TIME_REPEAT:
    case VySmil::VyTime::TIME_MEDIAMARKER:
    case VySmil::VyTime::TIME_ACCESSKEY:
    case VySmil::VyTime::TIME_WALLCLOCK:
        // Ids, names and keys are any text, in which other kinds of time may find their keywords; these kinds
        // are checked by themselves.
        return true;
    default:
        return false;
    }
}

template <typename Value>
void check(const QString &text)
{
    Value value;
    if (value.fromString(text) != VySmil::RESULT_OK)
        return;
    const QString first = value.toString();
    // A small negative number is printed as "-0.000000", which reads as a negative zero, which Qt prints
    // unsigned.
    if (isExempt(value) || first.contains(QLatin1String("-0.000000")))
        return;
    Value readBack;
    const int result = readBack.fromString(first);
    checkSame("printed text does not read", first, QString::number(result), QStringLiteral("0"));
    checkSame("printed text changes", text, first, readBack.toString());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    check<VySmil::VyCount>(text);
    check<VySmil::VyIndex>(text);
    check<VySmil::VyMediaLength>(text);
    check<VySmil::VyBandWidth>(text);
    check<VySmil::VyLength>(text);
    check<VySmil::VySize>(text);
    check<VySmil::VyCoords>(text);
    check<VySmil::VyColor>(text);
    check<VySmil::VyTimeCount>(text);
    check<VySmil::VyTimeFullClock>(text);
    check<VySmil::VyTimePartialClock>(text);
    check<VySmil::VyTimeClock>(text);
    check<VySmil::VyTimeOffset>(text);
    check<VySmil::VyTimeSmpte>(text);
    check<VySmil::VyTimeSycBase>(text);
    check<VySmil::VyTimeEvent>(text);
    check<VySmil::VyTimeRepeat>(text);
    check<VySmil::VyTimeAccessKey>(text);
    check<VySmil::VyTimeMediaMarker>(text);
    check<VySmil::VyWallClockSyncTime>(text);
    check<VySmil::VyTime>(text);
    return 0;
}
