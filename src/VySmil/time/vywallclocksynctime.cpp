// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/time/vywallclocksynctime.h>
#include <VySmil/values/number_p.h>

#include <algorithm>

namespace {

// Reads a number of width characters, or of what is left, and drops them and the one character behind them.
bool takeNumber(QStringView &rest, qsizetype width, quint32 &number)
{
    const bool isRead = VySmilPrivate::readUnsigned(rest.first(std::min(width, rest.size())), number);
    rest = rest.sliced(std::min(width + 1, rest.size()));
    return isRead;
}

bool hasSeconds(float seconds)
{
    return !(static_cast<double>(seconds) < 1e-07);
}

} // namespace

int VySmil::VyWallClockSyncTime::fromString(const QString &text)
{
    QStringView rest = QStringView(text).trimmed();
    const QStringView opening = u"wallclock(";
    if (rest.startsWith(opening)) {
        const qsizetype end = rest.indexOf(u')', opening.size());
        if (end < 0)
            return RESULT_UNUSABLE;
        rest = rest.sliced(opening.size(), end - opening.size());
    }

    QDate found;
    if (rest.count(u'-') >= 2) {
        quint32 year = 0;
        quint32 month = 0;
        quint32 day = 0;
        if (!takeNumber(rest, 4, year) || !takeNumber(rest, 2, month) || !takeNumber(rest, 2, day))
            return RESULT_UNUSABLE;
        found = QDate(static_cast<int>(year), static_cast<int>(month), static_cast<int>(day));
    }
    date = found;
    if (rest.startsWith(u'T'))
        rest = rest.sliced(1);

    QStringView zone;
    utc = rest.endsWith(u'Z');
    if (utc) {
        rest.chop(1);
    } else {
        qsizetype sign = rest.indexOf(u'-');
        if (sign < 0)
            sign = rest.indexOf(u'+');
        if (sign >= 0) {
            offsetPositive = rest[sign] == u'+';
            zone = rest.sliced(sign + 1);
            rest = rest.first(sign);
        }
    }

    rest = rest.trimmed();
    if (rest.isEmpty())
        return RESULT_OK;
    if (rest.size() < 5)
        return RESULT_UNUSABLE;
    if (!takeNumber(rest, 2, hours) || !takeNumber(rest, 2, minutes))
        return RESULT_UNUSABLE;
    if (!rest.isEmpty() && !VySmilPrivate::readFloat(rest, seconds))
        return RESULT_UNUSABLE;
    if (zone.isEmpty())
        return RESULT_OK;
    return VySmilPrivate::resultOf(zone.size() == 5 && takeNumber(zone, 2, offsetHours) &&
                                   takeNumber(zone, 2, offsetMinutes));
}

QString VySmil::VyWallClockSyncTime::toString() const
{
    const bool hasOffset = offsetHours != 0 || offsetMinutes != 0;
    const bool hasTime = hours != 0 || minutes != 0 || hasSeconds(seconds);
    QString text = QStringLiteral("wallclock(");
    if (date.isValid())
        text += QString::asprintf("%04d-%02d-%02d", date.year(), date.month(), date.day());
    if (hasTime || hasOffset) {
        if (date.isValid())
            text += u'T';
        text += VySmilPrivate::twoDigits(hours) + u':' + VySmilPrivate::twoDigits(minutes);
        if (hasSeconds(seconds)) {
            text += u':' + VySmilPrivate::secondsText(seconds);
            while (!hasOffset && text.endsWith(u'0'))
                text.chop(1);
            if (text.endsWith(u'.'))
                text.chop(1);
        }
    }
    if (hasOffset) {
        text += QChar(offsetPositive ? u'+' : u'-') + VySmilPrivate::twoDigits(offsetHours, u' ') + u':' +
                VySmilPrivate::twoDigits(offsetMinutes, u' ');
    } else if (utc) {
        text += u'Z';
    }
    return text + u')';
}
