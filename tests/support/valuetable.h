// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_VALUETABLE_H
#define VYSMIL_TESTS_VALUETABLE_H

#include <VySmil/VySmil>

#include <QStringList>
#include <QTest>

// One table row checks one value type: texts that are read in turn into one object, the result of the last
// reading, the fields then, and the printed text. What was printed must read back to the same text, unless
// the row says that it does not.

/// The fields of a value as text, numbers with nine digits, so that every float shows.
inline QString fieldText(float number)
{
    return QString::number(static_cast<double>(number), 'g', 9);
}

inline QString fieldsOf(const VySmil::VyCount &v)
{
    return QStringLiteral("%1 %2").arg(v.kind).arg(fieldText(v.value));
}
inline QString fieldsOf(const VySmil::VyIndex &v)
{
    return QStringLiteral("%1 %2").arg(v.kind).arg(v.value);
}
inline QString fieldsOf(const VySmil::VyMediaLength &v)
{
    const bool isPercent = v.kind == VySmil::NUMBER_PERCENT;
    return QStringLiteral("%1 ").arg(v.kind) +
           (isPercent ? fieldText(v.value.percent) : QString::number(v.value.number));
}
inline QString fieldsOf(const VySmil::VyBandWidth &v)
{
    return QStringLiteral("%1 %2").arg(v.kind).arg(v.value);
}
inline QString fieldsOf(const VySmil::VyLength &v)
{
    const bool isPercent = v.unit == VySmil::UNIT_PERCENT;
    return QStringLiteral("%1 ").arg(v.unit) +
           (isPercent ? fieldText(v.value.percent) : QString::number(v.value.pixels));
}
inline QString fieldsOf(const VySmil::VySize &v)
{
    const bool isPercent = v.unit == VySmil::UNIT_PERCENT;
    return QStringLiteral("%1 ").arg(v.unit) +
           (isPercent ? fieldText(v.value.fraction) : QString::number(v.value.pixels));
}
inline QString fieldsOf(const VySmil::VyCoords &v)
{
    QString text = QString::number(v.unit);
    for (const auto &slot : v.coords) {
        const bool isPercent = v.unit == VySmil::UNIT_PERCENT;
        text += u' ' + (isPercent ? fieldText(slot.fraction) : QString::number(slot.pixels));
    }
    return text;
}
inline QString fieldsOf(const VySmil::VyColor &v)
{
    return QStringLiteral("%1 %2 %3").arg(v.kind).arg(v.color.isValid() ? v.color.name() : "none", v.name);
}
inline QString fieldsOf(const VySmil::VyTimeCount &v)
{
    return QStringLiteral("%1 %2").arg(fieldText(v.value)).arg(v.metric);
}
inline QString fieldsOf(const VySmil::VyTimeFullClock &v)
{
    return QStringLiteral("%1 %2 %3").arg(v.hours).arg(v.minutes).arg(fieldText(v.seconds));
}
inline QString fieldsOf(const VySmil::VyTimePartialClock &v)
{
    return QStringLiteral("%1 %2").arg(v.minutes).arg(fieldText(v.seconds));
}
inline QString fieldsOf(const VySmil::VyTimeClock &v)
{
    const QStringList members{fieldsOf(v.timeCount), fieldsOf(v.fullClock), fieldsOf(v.partialClock)};
    return QStringLiteral("%1: %2").arg(v.clockType).arg(members.join(", "));
}
inline QString fieldsOf(const VySmil::VyTimeOffset &v)
{
    const QStringList members{fieldsOf(v.clock.timeCount), fieldsOf(v.clock.fullClock),
                              fieldsOf(v.clock.partialClock)};
    return (v.positive ? u'+' : u'-') + members.value(v.clock.clockType);
}
inline QString fieldsOf(const VySmil::VyTimeSmpte &v)
{
    return QStringLiteral("%1 %2 %3 %4 %5")
        .arg(v.hours)
        .arg(v.minutes)
        .arg(v.seconds)
        .arg(v.frames)
        .arg(v.smpteType);
}
inline QString fieldsOf(const VySmil::VyTimeSycBase &v)
{
    return QStringLiteral("%1 %2 %3").arg(v.id, v.isBegin ? "begin" : "end", fieldsOf(v.offset));
}
inline QString fieldsOf(const VySmil::VyTimeEvent &v)
{
    return QStringLiteral("%1 %2 %3").arg(v.id, v.event, fieldsOf(v.offset));
}
inline QString fieldsOf(const VySmil::VyTimeRepeat &v)
{
    return QStringLiteral("%1 %2 %3").arg(v.id).arg(v.iteration).arg(fieldsOf(v.offset));
}
inline QString fieldsOf(const VySmil::VyTimeAccessKey &v)
{
    return QStringLiteral("%1 %2").arg(v.key, fieldsOf(v.offset));
}
inline QString fieldsOf(const VySmil::VyTimeMediaMarker &v)
{
    return QStringLiteral("%1 %2").arg(v.id, v.markerName);
}
inline QString fieldsOf(const VySmil::VyWallClockSyncTime &v)
{
    return QStringLiteral("%1 %2 %3 %4 %5 %6%7 %8")
        .arg(v.date.isNull() ? "none" : v.date.toString(Qt::ISODate))
        .arg(v.hours)
        .arg(v.minutes)
        .arg(fieldText(v.seconds), v.utc ? "utc" : "local", v.offsetPositive ? "+" : "-")
        .arg(v.offsetHours)
        .arg(v.offsetMinutes);
}
/// The kind alone: the members are checked by their own rows.
inline QString fieldsOf(const VySmil::VyTime &v)
{
    return QString::number(v.timeType);
}

struct ValueCheck
{
    const char *type;
    void (*run)(const QStringList &texts, int result, const QString &fields, const QString &printed,
                bool readsBack);
};

template <typename Value>
void checkValue(const QStringList &texts, int result, const QString &fields, const QString &printed,
                bool readsBack)
{
    Value value;
    int last = -1;
    for (const QString &text : texts)
        last = value.fromString(text);
    QCOMPARE(last, result);
    QCOMPARE(fieldsOf(value), fields);
    QCOMPARE(value.toString(), printed);
    const Value copy = value;
    QCOMPARE(fieldsOf(copy), fields);
    Value again;
    const int readAgain = again.fromString(printed);
    QCOMPARE(readAgain == 0 && again.toString() == printed, readsBack);
}

/// The columns of a table. Texts to be read in turn are parted by "|".
inline void addValueColumns()
{
    QTest::addColumn<ValueCheck>("check");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QString>("printed");
    QTest::addColumn<bool>("readsBack");
}

template <typename Value>
struct ValueRows
{
    const char *type;

    void operator()(const QString &texts, int result, const char *fields, const char *printed,
                    bool readsBack = true) const
    {
        QTest::addRow("%s: %s", type, texts.toUtf8().toPercentEncoding(" %+:;,()|=#\"'").constData())
            << ValueCheck{type, checkValue<Value>} << texts.split(u'|') << result << QString::fromUtf8(fields)
            << QString::fromUtf8(printed) << readsBack;
    }
};

inline void checkValueRow()
{
    QFETCH(ValueCheck, check);
    QFETCH(QStringList, texts);
    QFETCH(int, result);
    QFETCH(QString, fields);
    QFETCH(QString, printed);
    QFETCH(bool, readsBack);
    check.run(texts, result, fields, printed, readsBack);
}

#endif
