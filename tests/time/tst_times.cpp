// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/valuetable.h"

#include <limits>

class TestTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void times_data()
    {
        addValueColumns();

        const ValueRows<VySmil::VyTimeCount> count{"timecount"};
        count("12.5s", 0, "12.5 2", "12.5s");
        count("12.5", 0, "12.5 2", "12.5s");
        count(" 3Min ", 0, "3 1", "3min");
        count("1.5H", 0, "1.5 0", "1.5h");
        count("250mS", 0, "250 3", "250ms");
        count("-1.5 s", 3, "-1.5 2", "-1.5s");
        count("- 5s", 3, "0 2", "0s");
        count("1h|min", 3, "0 1", "0min");
        count("1h|abc", 3, "0 2", "0s");
        count("5\u017f", 3, "5 2", "5s");
        count("5ss", 3, "5 2", "5s");
        count("1234567", 0, "1234567 2", "1.23457e+06s");
        count("", 3, "0 2", "0s");
        count("1e39ms", 3, "3.40282347e+38 3", "3.40282e+38ms");

        const ValueRows<VySmil::VyTimeFullClock> full{"full clock"};
        full("1:75:99.5", 0, "1 75 99.5", "01:75:99.500000");
        full(" 0 : 2 : 5", 0, "0 2 5", "00:02:05.000000");
        full("1:2:3|4:5", 3, "1 2 3", "01:02:03.000000");
        full("1:2:3|4:5:6:7", 3, "1 2 3", "01:02:03.000000");
        full("1:2:3|aa:5:6", 3, "0 2 3", "00:02:03.000000");
        full("1:2:3|4:-5:6", 3, "4 0 3", "04:00:03.000000");
        full("1:2:3|4:5:6x", 3, "4 5 6", "04:05:06.000000");
        full("::5", 3, "0 0 0", "00:00:00.000000");
        full("4294967295:100:-5.5", 0, "4294967295 100 -5.5", "4294967295:100:-5.500000");

        const ValueRows<VySmil::VyTimePartialClock> partial{"partial clock"};
        partial("2:5.5", 0, "2 5.5", "02:05.500000");
        partial("2:100", 0, "2 100", "02:100.000000");
        partial("2:5.5|1:2:3", 3, "2 5.5", "02:05.500000");
        partial("2:5.5|7:", 3, "7 0", "07:00.000000");

        const ValueRows<VySmil::VyTimeClock> clock{"clock"};
        clock("90", 0, "0: 90 2, 0 0 0, 0 0", "90s");
        clock("90|02:03", 0, "2: 90 2, 0 0 0, 2 3", "02:03.000000");
        clock("90|1:2:3", 0, "1: 90 2, 1 2 3, 0 0", "01:02:03.000000");
        clock("1:2|1:2:3:4", 3, "0: 1 2, 0 0 0, 1 2", "1s");
        clock("90|x:2:3", 3, "1: 90 2, 0 0 0, 0 0", "00:00:00.000000");

        const ValueRows<VySmil::VyTimeOffset> offset{"offset"};
        offset("+5s", 0, "+5 2", "+5s");
        offset(" - 1:30", 0, "-1 30", "-01:30.000000");
        offset("-5s|5s", 3, "-5 2", "-5s");
        offset("-5s|", 3, "-5 2", "-5s");
        offset("-5s|+", 3, "+0 2", "+0s");
        offset("--5s", 0, "--5 2", "--5s");

        const ValueRows<VySmil::VyTimeSmpte> smpte{"smpte"};
        smpte("SMPTE-30-DROP01:02:03:04", 0, "1 2 3 4 smpte-30-drop", "smpte-30-drop01:02:03:04");
        smpte("smpte-60 1:2:3", 0, "1 2 3 0 smpte-60", "smpte-6001:02:03");
        smpte("smpte-2410:20:30:00", 0, "10 20 30 0 smpte-24", "smpte-2410:20:30");
        smpte("smpte-24-drop1:1:1:1", 0, "1 1 1 1 smpte-24-drop", "smpte-24-drop01:01:01:01");
        smpte("smpte-60-drop1:1:1|smpte-501:2:3", 0, "1 2 3 0 smpte-50", "smpte-5001:02:03");
        smpte("smpte-501:2:3:4|smpte-99:00:00:00", 3, "1 2 3 4 smpte-50", "smpte-5001:02:03:04");
        smpte("smpte-501:2:3:4|smpte=1:2:3", 3, "1 2 3 4 smpte-50", "smpte-5001:02:03:04");
        smpte("smpte-501:2:3:4|smpte-2510:20", 3, "10 2 3 4 smpte-25", "smpte-2510:02:03:04");
        smpte("smpte-501:2:3:4|smpte-25=10:20:30", 3, "0 2 3 4 smpte-25", "smpte-2500:02:03:04");
        smpte("smpte-501:2:3:4|smpte-257:8:x", 3, "7 8 0 4 smpte-25", "smpte-2507:08:00:04");
        smpte("smpte-501:2:3:4|smpte-257:8:9:4.5", 3, "7 8 9 0 smpte-25", "smpte-2507:08:09");
        smpte("smpte-60-drop1:2:3", 0, "1 2 3 0 smpte-60-drop", "smpte-60-drop01:02:03");
        smpte("smpte-3001:02:03", 0, "1 2 3 0 smpte-30", "smpte-3001:02:03");
        smpte("smpte-251:2:3:4|smpte-251:2:3", 0, "1 2 3 0 smpte-25", "smpte-2501:02:03");
        smpte("smpte-2510:61:75:99", 0, "10 61 75 99 smpte-25", "smpte-2510:61:75:99");

        const ValueRows<VySmil::VyTimeSycBase> sync{"sync-base"};
        sync("intro.end+2s", 0, "intro end +2 2", "intro.end+2s");
        sync(" intro.BEGIN - 1.5s", 0, "intro begin -1.5 2", "intro.begin-1.5s");
        sync("begin+1s", 3, " begin +0 2", ".begin+0s");
        sync("a.begix+1s", 3, "a begin +0 2", "a.begin+0s");
        sync("a.enx+1s", 3, "a begin +0 2", "a.begin+0s");
        sync("a.end-1s|nothing", 3, "a end -1 2", "a.end-1s");
        sync("a.end-1s|b.c.begin+1s", 3, "b end -1 2", "b.end-1s");
        sync("a.end-1s|b.begin", 3, "b begin -1 2", "b.begin-1s");
        sync("a.end-1s|.beginEvent+1s", 3, " begin -1 2", ".begin-1s");

        const ValueRows<VySmil::VyTimeEvent> event{"event"};
        event("button.activateEvent + 0.5s", 0, "button activateEvent +0.5 2", "button.activateEvent+0.5s");
        event("a.b.c-1:00", 0, "a b.c -1 0", "a.b.c-01:00.000000");
        event("a.x-y+5s", 0, "a x-y +5 2", "a.x-y+5s");
        event("click+1s", 3, "  +0 2", ".+0s");
        event("a.+5s", 0, "a  +5 2", "a.+5s");
        event("a.b+1s|c", 3, "a b +1 2", "a.b+1s");
        event("a.b+1s|c.click", 3, "c b +1 2", "c.b+1s");
        event("a.b+1s|c.my-event-5s", 3, "c my -0 2", "c.my-0s");

        const ValueRows<VySmil::VyTimeRepeat> repeat{"repeat"};
        repeat("clip.repeat(2)+1s", 0, "clip 2 +1 2", "clip.repeat(2)+1s");
        repeat("clip.repeat(2)+1s|repeat( 3 )-0.5s", 0, "clip 3 -0.5 2", "clip.repeat(3)-0.5s");
        repeat("repeat(3)+0s", 0, " 3 +0 2", "repeat(3)+0s");
        repeat("clip..repeat(1)+0s", 0, "clip. 1 +0 2", "clip..repeat(1)+0s");
        repeat("xrepeat(1)+0s", 0, "x 1 +0 2", "x.repeat(1)+0s");
        repeat("a.repeat(2)+1s|b.REPEAT(1)+0s", 3, "a 2 +1 2", "a.repeat(2)+1s");
        repeat("a.repeat(2)+1s|b.repeat(1", 3, "b 2 +1 2", "b.repeat(2)+1s");
        repeat("a.repeat(2)+1s|b.repeat(x)+0s", 3, "b 0 +1 2", "b.repeat(0)+1s");
        repeat("a.repeat(2)+1s|b.repeat(7)", 3, "b 7 +1 2", "b.repeat(7)+1s");

        const ValueRows<VySmil::VyTimeAccessKey> key{"access key"};
        key("accesskey(a)+0s", 0, "a +0 2", "accesskey(a)+0s");
        key("ignored accesskey( + )-1s", 0, " +  -1 2", "accesskey( + )-1s");
        key("accesskey(a)+1s|accesskey()+0s", 3, "a +1 2", "accesskey(a)+1s");
        key("accesskey(a)+1s|accesskey(b", 3, "a +1 2", "accesskey(a)+1s");
        key("accesskey(a)+1s|AccessKey(b)+0s", 3, "a +1 2", "accesskey(a)+1s");
        key("accesskey(a)+1s|accesskey(b)", 3, "b +1 2", "accesskey(b)+1s");

        const ValueRows<VySmil::VyTimeMediaMarker> marker{"marker"};
        marker("movie.MARKER( chapter 2 )+5s", 0, "movie chapter 2", "movie.marker(chapter 2)");
        marker(".marker()", 0, " ", ".marker()");
        marker("a.marker(b)|marker(c)", 3, "a b", "a.marker(b)");
        marker("a.marker(b)|c.d.marker(e)", 3, "c b", "c.marker(b)");
        marker("a.marker(b)|c.marker(e", 3, "c b", "c.marker(b)");

        const ValueRows<VySmil::VyWallClockSyncTime> wall{"wall-clock"};
        wall("", 0, "none 0 0 0 local +0 0", "wallclock()");
        wall("wallclock(2004-05-06Z)", 0, "2004-05-06 0 0 0 local +0 0", "wallclock(2004-05-06)");
        wall(" wallclock(2004-05-06T12:30:05.25+01:30)x", 0, "2004-05-06 12 30 5.25 local +1 30",
             "wallclock(2004-05-06T12:30:05.250000+ 1:30)");
        wall("wallclock(2004-05-06T12:30:05.5- 5: 0)", 0, "2004-05-06 12 30 5.5 local -5 0",
             "wallclock(2004-05-06T12:30:05.500000- 5: 0)");
        wall("wallclock(2004-05-06 12.30)", 0, "2004-05-06 12 30 0 local +0 0",
             "wallclock(2004-05-06T12:30)");
        wall("wallclock(10000)", 0, "none 10 0 0 local +0 0", "wallclock(10:00)");
        wall("wallclock(T12:00:10Z)", 0, "none 12 0 10 utc +0 0", "wallclock(12:00:10Z)");
        wall("12:00z", 0, "none 12 0 0 local +0 0", "wallclock(12:00)");
        wall("wallclock(25:99-05:00)", 0, "none 25 99 0 local -5 0", "wallclock(25:99- 5: 0)");
        wall("WallClock(12:00)", 3, "none 0 0 0 local +0 0", "wallclock()");
        wall("wallclock(2004/05/06T12:30)", 3, "none 20 0 0 local +0 0", "wallclock(20:00)");
        wall("1:00:05.5+01:00|wallclock(12:5)", 3, "none 0 0 0 local +0 0", "wallclock()");
        wall("01:00:05.5+01:00|wallclock(12:5)", 3, "none 1 0 5.5 local +1 0",
             "wallclock(01:00:05.500000+ 1: 0)");
        wall("01:00:05.5+01:00|12:30", 0, "none 12 30 5.5 local +1 0", "wallclock(12:30:05.500000+ 1: 0)");
        wall("wallclock(12:00-5:00)", 3, "none 12 0 0 local -0 0", "wallclock(12:00)");
        wall("wallclock(12:30:05x)", 3, "none 12 30 5 local +0 0", "wallclock(12:30:05)");
        wall("wallclock(2004-13-45T10:00)", 0, "none 10 0 0 local +0 0", "wallclock(10:00)");
        wall("wallclock(2004-05-06)|wallclock(12:00", 3, "2004-05-06 0 0 0 local +0 0",
             "wallclock(2004-05-06)");
        wall("wallclock(2004-05-06)|wallclock(x-y-z)", 3, "2004-05-06 0 0 0 local +0 0",
             "wallclock(2004-05-06)");
        wall("12:00:0.00000015", 0, "none 12 0 1.50000005e-07 local +0 0", "wallclock(12:00:00)", false);
        wall("12:00:0.00000007", 0, "none 12 0 6.99999987e-08 local +0 0", "wallclock(12:00)");
        wall("wallclock(-05:00)", 0, "none 0 0 0 local -0 0", "wallclock()");
        wall("wallclock(2004-05-06T-05:00)", 0, "2004-05-06 0 0 0 local -0 0", "wallclock(2004-05-06)");
        wall("wallclock( 12:30)", 0, "none 12 30 0 local +0 0", "wallclock(12:30)");
        wall("wallclock(12:30:05 +01:00)", 0, "none 12 30 5 local +1 0", "wallclock(12:30:05.000000+ 1: 0)");
        wall("wallclock(12:30:05.5)", 0, "none 12 30 5.5 local +0 0", "wallclock(12:30:05.5)");
        wall("wallclock(--)", 3, "none 0 0 0 local +0 0", "wallclock()");
        wall("wallclock(00:00+01:30)", 0, "none 0 0 0 local +1 30", "wallclock(00:00+ 1:30)");
        wall("12:00:1.5e3", 0, "none 12 0 1500 local +0 0", "wallclock(12:00:1500)");

        using Kind = VySmil::VyTime;
        const ValueRows<VySmil::VyTime> time{"time"};
        const auto row = [&time](Kind::TIME_TYPE kind, const char *text, int result, const char *printed,
                                 bool readsBack = true) {
            time(QString::fromUtf8(text), result, QByteArray::number(kind).constData(), printed, readsBack);
        };
        row(Kind::TIME_EMPTY, "5s| ", 0, "");
        row(Kind::TIME_INDEFINITE, "InDefinite", 0, "indefinite");
        row(Kind::TIME_CLOCK, "10s", 0, "10s");
        row(Kind::TIME_CLOCK, "250MS", 0, "250ms");
        row(Kind::TIME_CLOCK, "1.5Min", 0, "1.5min");
        row(Kind::TIME_CLOCK, "1:02:03.5", 0, "01:02:03.500000");
        row(Kind::TIME_CLOCK, "npt=10", 0, "10s");
        row(Kind::TIME_CLOCK, "2h", 0, "2h");
        row(Kind::TIME_CLOCK, "2.5", 0, "2.5s");
        row(Kind::TIME_CLOCK, "1.e+5", 0, "100000s");
        row(Kind::TIME_CLOCK, "npt10:00", 3, "00:00.000000");
        row(Kind::TIME_CLOCK, "click+2s", 3, "0s");
        row(Kind::TIME_CLOCK, "clicks", 3, "0s");
        row(Kind::TIME_CLOCK, "smpte=01:02:03", 3, "00:00:00.000000");
        row(Kind::TIME_CLOCK, "x.1+2s", 3, "0s");
        row(Kind::TIME_OFFSET, "-01:00", 0, "-01:00.000000");
        row(Kind::TIME_OFFSET, "-5%", 3, "-5s");
        row(Kind::TIME_OFFSET, "+a.click+2s", 3, "+0s");
        row(Kind::TIME_SYNCBASE, "intro.begin+1s", 0, "intro.begin+1s");
        row(Kind::TIME_SYNCBASE, "-a.beginEvent+1s", 3, "-a.begin+0s");
        row(Kind::TIME_SYNCBASE, "intro.end+2s", 0, "intro.end+2s");
        row(Kind::TIME_SYNCBASE, "-a.begin+1s", 0, "-a.begin+1s");
        row(Kind::TIME_SYNCBASE, "a.endEvent", 3, "a.end+0s");
        row(Kind::TIME_SYNCBASE, "a.begin", 3, "a.begin+0s");
        row(Kind::TIME_SYNCBASE, "a.b.begin+1s", 3, "a.begin+0s");
        row(Kind::TIME_EVENT, "a.begi+1s", 0, "a.begi+1s");
        row(Kind::TIME_EVENT, "button.enter+1s", 0, "button.enter+1s");
        row(Kind::TIME_EVENT, ".click+2s", 0, ".click+2s");
        row(Kind::TIME_EVENT, "a.x+1s", 0, "a.x+1s");
        row(Kind::TIME_EVENT, "a.marker (x)+1s", 0, "a.marker (x)+1s");
        row(Kind::TIME_EVENT, "a.repeat (2)+1s", 0, "a.repeat (2)+1s");
        row(Kind::TIME_EVENT, "a.beginEvent+1s", 0, "a.beginEvent+1s");
        row(Kind::TIME_EVENT, "a.endEvent+2", 0, "a.endEvent+2s");
        row(Kind::TIME_EVENT, "a.Beginnings.end-1s", 0, "a.Beginnings.end-1s");
        row(Kind::TIME_EVENT, "button.click+2s", 0, "button.click+2s");
        row(Kind::TIME_EVENT, "button.click - 00:02", 0, "button.click-00:02.000000");
        row(Kind::TIME_EVENT, "a.click", 3, "a.+0s", false);
        row(Kind::TIME_EVENT, "movie.MARKER(x)", 3, "movie.+0s", false);
        row(Kind::TIME_REPEAT, "clip.begin.repeat(2)+1s", 0, "clip.begin.repeat(2)+1s");
        row(Kind::TIME_ACCESSKEY, "accesskey(a", 3, "accesskey()+0s", false);
        row(Kind::TIME_CLOCK, "accesskey (a)+1s", 3, "0s");
        row(Kind::TIME_ACCESSKEY, "accesskey(repeat()+0s", 0, "accesskey(repeat()+0s");
        row(Kind::TIME_MEDIAMARKER, "+m.marker(accesskey(a))", 0, "+m.marker(accesskey(a)");
        row(Kind::TIME_WALLCLOCK, "WALLCLOCK", 3, "wallclock()");
        row(Kind::TIME_WALLCLOCK, "wallcloc\u212a(marker()", 3, "wallclock()");
        row(Kind::TIME_WALLCLOCK, "wallclock(2004-05-06T12:00Z)", 0, "wallclock(2004-05-06T12:00Z)");
        row(Kind::TIME_SMPTE, "SMPTE-30-DROP01:02:03:04", 0, "smpte-30-drop01:02:03:04");
        row(Kind::TIME_SMPTE, "smpte-marker(x)", 3, "smpte-2500:00:00");
        row(Kind::TIME_PERCENT, "50%", 0, "50%");
        row(Kind::TIME_PERCENT, "x%", 3, "0%");
        row(Kind::TIME_TEXT, " 5 ", 0, "5");
        row(Kind::TIME_TEXT, "wallcloc", 0, "wallcloc");
        row(Kind::TIME_TEXT, "npt10", 0, "npt10");
        row(Kind::TIME_TEXT, "media (", 0, "media (");
    }
    void times() { checkValueRow(); }

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
