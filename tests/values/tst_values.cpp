// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/tablerows.h"
#include "../support/valuefields.h"

#include <QLocale>

namespace {

// A row has the name of a type, texts that are read in turn into one object, parted by "|", the result of the
// last reading, the fields then, and the printed text. What was printed must read back to the same text,
// unless the row ends in "false".
template <typename Value>
void checkValue(const QJsonArray &row)
{
    Value value;
    int last = -1;
    for (const QString &text : row[1].toString().split(u'|'))
        last = value.fromString(text);
    QCOMPARE(last, row[2].toInt(-1));
    QCOMPARE(fieldsOf(value), row[3].toString());
    QCOMPARE(value.toString(), row[4].toString());
    Value again;
    const int readAgain = again.fromString(value.toString());
    QCOMPARE(readAgain == 0 && again.toString() == value.toString(), row[5].toBool(true));
    // In a list a value is moved as bytes, but made with the defaults of its fields.
    QVERIFY(QTypeInfo<Value>::isRelocatable);
    QCOMPARE(fieldsOf(QList<Value>(2).last()), fieldsOf(Value()));
}

} // namespace

class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // A user's decimal comma must not matter.
        QLocale::setDefault(QLocale("de_DE"));
        setlocale(LC_ALL, "de_DE.UTF-8");
    }

    void values_data()
    {
        QTest::addColumn<QJsonArray>("row");
        for (const char *name : {"values", "times"}) {
            for (const QJsonArray &row : tableRows(ROWS + QString("/%1.rows").arg(QString(name))))
                QTest::addRow("%s: %s", qPrintable(row[0].toString()), qPrintable(row[1].toString())) << row;
        }
    }
    void values()
    {
        QFETCH(QJsonArray, row);
        static const QHash<QString, void (*)(const QJsonArray &)> checks{
            {"count", checkValue<VySmil::VyCount>},
            {"index", checkValue<VySmil::VyIndex>},
            {"media length", checkValue<VySmil::VyMediaLength>},
            {"bandwidth", checkValue<VySmil::VyBandWidth>},
            {"length", checkValue<VySmil::VyLength>},
            {"size", checkValue<VySmil::VySize>},
            {"coords", checkValue<VySmil::VyCoords>},
            {"color", checkValue<VySmil::VyColor>},
            {"timecount", checkValue<VySmil::VyTimeCount>},
            {"full clock", checkValue<VySmil::VyTimeFullClock>},
            {"partial clock", checkValue<VySmil::VyTimePartialClock>},
            {"clock", checkValue<VySmil::VyTimeClock>},
            {"offset", checkValue<VySmil::VyTimeOffset>},
            {"smpte", checkValue<VySmil::VyTimeSmpte>},
            {"sync-base", checkValue<VySmil::VyTimeSycBase>},
            {"event", checkValue<VySmil::VyTimeEvent>},
            {"repeat", checkValue<VySmil::VyTimeRepeat>},
            {"access key", checkValue<VySmil::VyTimeAccessKey>},
            {"marker", checkValue<VySmil::VyTimeMediaMarker>},
            {"wall-clock", checkValue<VySmil::VyWallClockSyncTime>},
            {"time", checkValue<VySmil::VyTime>},
        };
        const auto check = checks.value(row[0].toString());
        QVERIFY2(check, "no such type");
        check(row);
    }

    void systemColors()
    {
        const QStringList names =
            QString(
                "ActiveBorder ActiveCaption AppWorkspace Background ButtonFace ButtonHighlight ButtonShadow "
                "ButtonText CaptionText GrayText Grayed Highlight HighlightText InactiveBorder "
                "InactiveCaption "
                "InactiveCaptionText InfoBackground InfoText Menu MenuText Scrollbar ThreeDDarkShadow "
                "ThreeDFace "
                "ThreeDHighlight ThreeDLightShadow ThreeDShadow Window WindowFrame WindowText")
                .split(u' ');
        QCOMPARE(names.size(), qsizetype(29));
        for (const QString &name : names) {
            VySmil::VyColor color;
            QCOMPARE(color.fromString(name), 0);
            QCOMPARE(color.toString(), name.toLower());
            QCOMPARE(color.fromString(name + "s"), 3);
        }
    }

    void kindsOutsideTheirList()
    {
        VySmil::VyCount count;
        count.kind = static_cast<VySmil::VyCount::COUNT_KIND>(9);
        QCOMPARE(count.toString(), QString("1"));
        VySmil::VyBandWidth band;
        band.kind = static_cast<VySmil::NUMBER_KIND>(9);
        QCOMPARE(band.toString(), QString(""));
        VySmil::VyColor color;
        color.kind = VySmil::VyColor::COLOR_NAMED;
        color.name = "Own";
        QCOMPARE(color.toString(), QString("Own"));
        QCOMPARE(color.fromString(color.name), 3);
    }
};

QTEST_GUILESS_MAIN(TestValues)
#include "tst_values.moc"
