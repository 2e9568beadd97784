// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/time/vytime.h>
#include <VySmil/values/keyword_p.h>
#include <VySmil/values/number_p.h>

#include <algorithm>

namespace {

using Time = VySmil::VyTime;

bool isSign(QChar c)
{
    return c == u'+' || c == u'-';
}

// Whether text is of the shape of an event value: no sign in front, a ".", behind it a word, and then a sign.
// Texts of this shape would also pass for sync-base values ("a.beginEvent+1s") or clock values
// ("a.click+2s").
bool hasEventShape(QStringView text)
{
    const qsizetype dot = text.indexOf(u'.');
    if (dot < 0 || isSign(text.front()))
        return false;
    const QStringView rest = text.sliced(dot + 1);
    const auto sign = std::find_if(rest.begin(), rest.end(), isSign);
    if (sign == rest.end())
        return false;
    const QStringView name = rest.first(sign - rest.begin()).trimmed();
    return !name.isEmpty() && name.front().isLetter();
}

// Whether the first "." is followed by "begin" or "end" and then by a letter: an event name, not the keyword.
bool hasLongerWordThanSyncBase(QStringView text)
{
    const QStringView rest = text.sliced(text.indexOf(u'.') + 1);
    for (const QStringView keyword : {QStringView(u"begin"), QStringView(u"end")}) {
        if (VySmilPrivate::startsLowered(rest, keyword))
            return rest.size() > keyword.size() && rest[keyword.size()].isLetter();
    }
    return false;
}

// Whether text holds a ":" or ends in a metric ("ms" ends in "s").
bool isClockText(QStringView text)
{
    return text.contains(u':') || VySmilPrivate::endsLowered(text, u"s") ||
           VySmilPrivate::endsLowered(text, u"h") || VySmilPrivate::endsLowered(text, u"min");
}

bool isFloat(QStringView text)
{
    float number = 0;
    return VySmilPrivate::readFloat(text, number);
}

// The kind of a trimmed text. The order of the tests decides what a text is that several kinds could claim.
Time::TIME_TYPE kindOf(QStringView text)
{
    if (text.isEmpty())
        return Time::TIME_EMPTY;
    if (VySmilPrivate::equalsLowered(text, u"indefinite"))
        return Time::TIME_INDEFINITE;
    if (VySmilPrivate::startsLowered(text, u"wallclock"))
        return Time::TIME_WALLCLOCK;
    if (VySmilPrivate::startsLowered(text, u"smpte-"))
        return Time::TIME_SMPTE;
    if (text.contains(u'(')) {
        if (text.contains(u"marker("))
            return Time::TIME_MEDIAMARKER;
        if (text.contains(u"accesskey("))
            return Time::TIME_ACCESSKEY;
        if (text.contains(u"repeat("))
            return Time::TIME_REPEAT;
    }
    const bool hasDot = text.contains(u'.');
    if (hasDot && (text.contains(u".begin") || text.contains(u".end"))) {
        return hasLongerWordThanSyncBase(text) && hasEventShape(text) ? Time::TIME_EVENT
                                                                      : Time::TIME_SYNCBASE;
    }
    if (isSign(text.front()))
        return Time::TIME_OFFSET;
    if (text.startsWith(u"npt="))
        return Time::TIME_CLOCK;
    if (isClockText(text) && !hasEventShape(text))
        return Time::TIME_CLOCK;
    if (hasDot)
        return isFloat(text) ? Time::TIME_CLOCK : Time::TIME_EVENT;
    return text.endsWith(u'%') ? Time::TIME_PERCENT : Time::TIME_TEXT;
}

} // namespace

int VySmil::VyTime::fromString(const QString &text)
{
    const QString trimmed = text.trimmed();
    timeType = kindOf(trimmed);
    switch (timeType) {
    case TIME_OFFSET:
        return VySmilPrivate::readTime(trimmed, offsetTime);
    case TIME_SYNCBASE:
        return syncBaseTime.fromString(trimmed);
    case TIME_EVENT:
        return eventTime.fromString(trimmed);
    case TIME_REPEAT:
        return repeatTime.fromString(trimmed);
    case TIME_ACCESSKEY:
        return accessKeyTime.fromString(trimmed);
    case TIME_MEDIAMARKER:
        return mediaMarkerTime.fromString(trimmed);
    case TIME_WALLCLOCK:
        return wallClockTime.fromString(trimmed);
    case TIME_CLOCK: {
        const QStringView clock = trimmed;
        return VySmilPrivate::readTime(clock.startsWith(u"npt=") ? clock.sliced(4) : clock, clockTime);
    }
    case TIME_SMPTE:
        return smpteTime.fromString(trimmed);
    case TIME_PERCENT:
        return VySmilPrivate::resultOf(VySmilPrivate::readUnsigned(QStringView(trimmed).chopped(1), percent));
    case TIME_TEXT:
        rawText = trimmed;
        return RESULT_OK;
    default:
        return RESULT_OK;
    }
}

QString VySmil::VyTime::toString() const
{
    switch (timeType) {
    case TIME_OFFSET:
        return offsetTime.toString();
    case TIME_SYNCBASE:
        return syncBaseTime.toString();
    case TIME_EVENT:
        return eventTime.toString();
    case TIME_REPEAT:
        return repeatTime.toString();
    case TIME_ACCESSKEY:
        return accessKeyTime.toString();
    case TIME_MEDIAMARKER:
        return mediaMarkerTime.toString();
    case TIME_WALLCLOCK:
        return wallClockTime.toString();
    case TIME_CLOCK:
        return clockTime.toString();
    case TIME_SMPTE:
        return smpteTime.toString();
    case TIME_PERCENT:
        return QString::number(percent) + u'%';
    case TIME_TEXT:
        return rawText;
    case TIME_INDEFINITE:
        return QStringLiteral("indefinite");
    default:
        return QString();
    }
}
