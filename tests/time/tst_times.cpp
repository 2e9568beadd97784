// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/valuefields.h"

#include <QTest>

#include <limits>

class TestTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void milliSeconds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint32>("milliSeconds");
        QTest::newRow("hours") << "1.5h" << 5400000;
        QTest::newRow("minutes, rounded in between") << "0.7min" << 42000;
        QTest::newRow("seconds") << "0.1s" << 100;
        QTest::newRow("truncated") << "2.5ms" << 2;
        QTest::newRow("towards zero") << "-1.5s" << -1500;
        QTest::newRow("too long") << "600h" << std::numeric_limits<qint32>::max();
        QTest::newRow("just too long") << "2147483647ms" << std::numeric_limits<qint32>::max();
        QTest::newRow("just fits") << "2147483520ms" << 2147483520;
        QTest::newRow("least") << "-2147483648ms" << std::numeric_limits<qint32>::min();
        QTest::newRow("too far back") << "-3e38h" << std::numeric_limits<qint32>::min();
    }
    void milliSeconds()
    {
        QFETCH(QString, text);
        QFETCH(qint32, milliSeconds);
        VySmil::VyTimeCount count;
        count.fromString(text);
        QCOMPARE(count.toMilliSeconds(), milliSeconds);
        count.value = std::numeric_limits<float>::quiet_NaN();
        QCOMPARE(count.toMilliSeconds(), 0);
    }

    // What a client prints for an event with ordinary names reads back as that event.
    void eventsReadBack()
    {
        for (const char *name : {"click", "beginEvent", "endEvent", "endlich", "focusIns", "each"}) {
            for (const char *offset : {"+2s", "-00:01", "+1.5h", "-250ms", "+1:02:03"}) {
                VySmil::VyTime time;
                time.timeType = VySmil::VyTime::TIME_EVENT;
                time.eventTime.id = "button";
                time.eventTime.event = name;
                QCOMPARE(time.eventTime.offset.fromString(offset), 0);
                VySmil::VyTime readBack;
                QCOMPARE(readBack.fromString(time.toString()), 0);
                QCOMPARE(readBack.timeType, VySmil::VyTime::TIME_EVENT);
                QCOMPARE(fieldsOf(readBack.eventTime), fieldsOf(time.eventTime));
            }
        }
    }

    // A text may be a field of the object that reads it.
    void ownFieldsAsText()
    {
        VySmil::VyTime time;
        time.rawText = QString("  a.click+1s").sliced(2);
        QCOMPARE(time.fromString(time.rawText), 0);
        time.eventTime.id = QString("b.x+1s ").trimmed();
        QCOMPARE(time.eventTime.fromString(time.eventTime.id), 0);
        QCOMPARE(time.eventTime.toString(), QString("b.x+1s"));
        time.smpteTime.smpteType = QString("smpte-501:2:3 ").trimmed();
        QCOMPARE(time.smpteTime.fromString(time.smpteTime.smpteType), 0);
        QCOMPARE(time.smpteTime.toString(), QString("smpte-5001:02:03"));
        time.mediaMarkerTime.markerName = QString("c.marker(d) ").trimmed();
        QCOMPARE(time.mediaMarkerTime.fromString(time.mediaMarkerTime.markerName), 0);
        QCOMPARE(time.mediaMarkerTime.toString(), QString("c.marker(d)"));
        QCOMPARE(time.rawText, QString("a.click+1s"));
    }

    void kindsOutsideTheirList()
    {
        VySmil::VyTime time;
        QCOMPARE(time.toString(), QString(""));
        time.timeType = static_cast<VySmil::VyTime::TIME_TYPE>(13);
        QCOMPARE(time.toString(), QString(""));
        time.clockTime.clockType = static_cast<VySmil::VyTimeClock::CLOCK_TYPE>(7);
        QCOMPARE(time.clockTime.toString(), QString("00:00:00.000000"));
        time.clockTime.timeCount.metric = static_cast<VySmil::VyTimeCount::TIME_METRIC>(7);
        QCOMPARE(time.clockTime.timeCount.toString(), QString("0s"));
        QVERIFY(time.rawText.isNull() && !time.eventTime.id.isNull());
        VySmil::VyWallClockSyncTime wall;
        wall.date = QDate(2004, 5, 6);
        wall.utc = true;
        QCOMPARE(wall.toString(), QString("wallclock(2004-05-06Z)"));
        wall.seconds = 4e-7F;
        QCOMPARE(wall.toString(), QString("wallclock(2004-05-06T00:00:00Z)"));
    }
};

QTEST_GUILESS_MAIN(TestTimes)
#include "tst_times.moc"
