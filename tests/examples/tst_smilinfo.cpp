// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// What the example "smilinfo" says, where, and with which exit status.

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class TestSmilinfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documents_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("printed"); // a part of it
        QTest::addColumn<bool>("isError");
        const QByteArray odd =
            "<smil><par dur='5ss'><img src='\xc3\xa4' color='1' begin='1.5s'/><seq/></par></smil>";
        QTest::newRow("finding at its place")
            << QStringList{} << odd << QByteArray("color = \"1\"    <-- unknown attr") << false;
        QTest::newRow("milliseconds")
            << QStringList{} << odd << QByteArray("(clock time 1.5s, 1500 ms)\n") << false;
        QTest::newRow("does not read")
            << QStringList{} << odd << QByteArray("5000 ms)    <-- does not read") << false;
        QTest::newRow("unknown element")
            << QStringList{} << odd << QByteArray("seq    <-- unknown element") << false;
        QTest::newRow("strict") << QStringList{"--strict"} << odd << QByteArray(": stopped at an attribute")
                                << false;
        QTest::newRow("rewrite") << QStringList{"--rewrite"} << odd
                                 << QByteArray("color=\"1\" src=\"\xc3\xa4\">\n</img>") << false;
        QTest::newRow("UTF-16") << QStringList{} << QByteArray("\xff\xfe<\0s\0m\0i\0l\0/\0>\0", 16)
                                << QByteArray("nothing found") << false;
        QTest::newRow("Latin-1") << QStringList{}
                                 << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><smil a='\xe4'/>")
                                 << QByteArray("a = \"\xc3\xa4\"") << false;
        QTest::newRow("no XML") << QStringList{} << QByteArray("<smil><") << QByteArray() << true;
        QTest::newRow("empty") << QStringList{"--strict"} << QByteArray(" ") << QByteArray() << true;
    }
    void documents()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, printed);
        QFETCH(bool, isError);
        QTemporaryDir dir;
        QFile file(dir.filePath("a.smil"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document);
        file.close();
        QProcess process;
        // The file that is missing does not keep the other from being read.
        process.start(PROGRAM, arguments + QStringList{dir.filePath("missing"), file.fileName()});
        QVERIFY(process.waitForFinished());
        const QByteArray output = process.readAllStandardOutput();
        const QByteArray errors = process.readAllStandardError();
        QCOMPARE(process.exitCode(), 1);
        QCOMPARE(errors.count('\n'), isError ? 2 : 1);
        QVERIFY2(isError ? output.isEmpty() : output.contains(printed), output);
        process.setStandardInputFile(file.fileName());
        process.start(PROGRAM, arguments);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), isError ? 1 : 0);
    }
};

QTEST_GUILESS_MAIN(TestSmilinfo)
#include "tst_smilinfo.moc"
