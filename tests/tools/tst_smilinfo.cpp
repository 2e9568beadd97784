// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// What the program "smilinfo" says, where, and with which exit status.

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
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
        QTest::addColumn<QByteArray>("printed"); // a part of it, on standard error if the document is no SMIL
        QTest::addColumn<int>("exitCode");
        const auto row = [](const char *name, const QStringList &arguments, const QByteArray &document,
                            const char *printed, int exitCode = 0) {
            QTest::newRow(name) << arguments << document << QByteArray(printed) << exitCode;
        };
        const QByteArray odd =
            "<smil><par dur='5ss'><img src='\xc3\xa4' color='1' begin='1.5s'/><seq/></par></smil>";
        const QByteArray clean = "<smil><body><par dur='5ms'><audio src='a'/></par></body></smil>";
        row("finding at its place", {}, odd, "color = \"1\"    <-- unknown attr");
        row("milliseconds", {}, odd, "(clock time 1.5s, 1500 ms)\n");
        row("does not read", {}, odd, "5000 ms)    <-- does not read");
        row("unknown element", {}, odd, "seq    <-- unknown element");
        row("strict", {"--strict"}, odd, ": stopped at an attribute");
        row("rewrite", {"--rewrite"}, odd, "color=\"1\" src=\"\xc3\xa4\">\n</img>");
        row("slides", {"--slides"}, odd,
            "slide 1: 5000 ms    <-- guessed: time\n    image \"\xc3\xa4\" from 1500 to 5000 ms, at 0,0 in "
            "320 x 480    <-- guessed: region\n");
        row("findings", {"--check"}, odd, "error: par/img: begin is not in whole milliseconds\n", 1);
        row("relaxed findings", {"--check", "--level", "relaxed"}, odd, "warning: smil: has no body\n", 1);
        row("no findings", {"--check"}, clean, "");
        row("no such level", {"--check", "--level=mild"}, clean, "no such level: mild", 2);
        row("UTF-16", {}, QByteArray("\xff\xfe<\0s\0m\0i\0l\0/\0>\0", 16), "nothing found");
        row("Latin-1", {}, "<?xml version='1.0' encoding='ISO-8859-1'?><smil a='\xe4'/>", "a = \"\xc3\xa4\"");
        row("no XML", {}, "<smil><", "no well-formed XML", 2);
        row("blank", {"--strict"}, " ", "no SMIL", 2);
        row("nothing", {"--json"}, "", "no SMIL", 2);
        row("binary", {}, QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "no well-formed XML", 2);
        row("nesting", {}, QByteArray("<smil>").repeated(50'000), "beyond the bounds", 2);
    }
    void documents()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, printed);
        QFETCH(int, exitCode);
        QTemporaryDir dir;
        QFile file(dir.filePath("a.smil"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(document);
        file.close();
        QProcess process;
        process.setStandardInputFile(file.fileName());
        process.start(PROGRAM, arguments);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), exitCode);
        const QByteArray output = process.readAllStandardOutput();
        const QByteArray errors = process.readAllStandardError();
        QVERIFY2((exitCode == 2 ? errors : output).contains(printed), output + errors);
        QCOMPARE(errors.count('\n'), exitCode == 2 ? 1 : 0);
        QCOMPARE(exitCode == 2 || printed.isEmpty(), output.isEmpty());
    }

    // What cannot be read does not keep the others from being read.
    void otherFilesAreDone()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath("a.smil"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<smil/>");
        file.close();
        QProcess process;
        process.start(PROGRAM, {dir.filePath("missing"), dir.path(), file.fileName()});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QCOMPARE(process.readAllStandardError().count('\n'), 2);
        QVERIFY(process.readAllStandardOutput().contains("a.smil: read"));
    }

    // Every member that the man page names, with its value.
    void printsJson()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath("a.smil"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(
            "<smil><head><layout><region id='Image' width='50%' left='x' fit='meet'/></layout></head><body>"
            "<par dur='4s'><img src='a' alt='b' region='Image' x=''/><seq/></par></body></smil>");
        file.close();
        QProcess process;
        process.start(PROGRAM, {"--json", "--check", file.fileName()});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 1);
        const QJsonObject object = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
        const auto text = [](const QJsonValue &value) {
            return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
        };
        QCOMPARE(object["file"].toString(), file.fileName());
        QCOMPARE(object["result"].toInt(-1), 0);
        QCOMPARE(object["status"].toInt(-1), 1);
        const QJsonValue head = object["tree"]["children"][0];
        QCOMPARE(text(head["children"][0]["children"][0]),
                 "{\"attributes\":[{\"known\":true,\"name\":\"fit\",\"value\":\"meet\"},"
                 "{\"known\":true,\"name\":\"id\",\"value\":\"Image\"},"
                 "{\"known\":true,\"name\":\"left\",\"pixels\":0,\"reads\":false,\"value\":\"x\"},"
                 "{\"known\":true,\"name\":\"width\",\"percent\":50,\"reads\":true,\"value\":\"50%\"}],"
                 "\"children\":[],\"known\":true,\"name\":\"region\"}");
        QCOMPARE(object["tree"]["children"][1]["children"][0]["attributes"][0]["time"].toString(), "4s");
        QCOMPARE(text(object["show"]),
                 "{\"guesses\":[\"size\"],\"height\":480,\"slides\":[{\"durationMs\":4000,\"guesses\":[],"
                 "\"media\":[{\"alt\":\"b\",\"beginMs\":0,\"endMs\":4000,\"fit\":\"meet\",\"guesses\":[],"
                 "\"kind\":\"image\",\"rect\":[0,0,160,480],\"region\":\"Image\",\"src\":\"a\"}]}],\"width\":"
                 "320}");
        QCOMPARE(text(object["findings"][0]),
                 "{\"attribute\":\"left\",\"message\":\"does not read as a length\","
                 "\"path\":\"head/layout/region\",\"rule\":8,\"severity\":\"error\"}");
    }
};

QTEST_GUILESS_MAIN(TestSmilinfo)
#include "tst_smilinfo.moc"
