// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// How programs read messages from files and folders, shown by "smilinfo".

#include "program.h"

#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using Files = QMap<QString, QByteArray>;

class TestMessageFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folders_data()
    {
        QTest::addColumn<Files>("files");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("printed"); // the end of it
        QTest::addColumn<int>("exitCode");
        const QByteArray picture("\xff\xd8\xff\xe0");
        const auto shows = [](const QByteArray &part) {
            return "image \"a.jpg\" from 0 ms to the end of the slide, at 0,0 in 320 x 480, fit meet" + part;
        };
        const QByteArray message = "<smil><body><par dur='4000ms'><img src='a.jpg'/></par></body></smil>";
        const QByteArray guessed = "    <-- guessed: region";
        QTest::newRow("parts of a folder")
            << Files{{"m/a.smil", message},
                     {"m/a.jpg", picture},
                     {"m/.x", "BEGIN:VCARD"},
                     {"m/n\xc3\xa9\x1b", "a"}}
            << QStringList{"--slides", "m"}
            << shows(", part m/a.jpg (image/jpeg)" + guessed + "\n  unused: m/.x (text/vcard)\n") +
                   "  unused: m/n\xc3\xa9\\x1b (text/plain)\n"
            << 0;
        QTest::newRow("type by content")
            << Files{{"m/s.txt", "\xef\xbb\xbf<?xml version='1.0'?><!-- a --><!DOCTYPE smil>\n" +
                                     QByteArray(message).replace(".jpg", "")},
                     {"m/a", picture}}
            << QStringList{"--slides", "m"}
            << QByteArray(shows(", part m/a (image/jpeg)" + guessed + "\n")).replace("a.jpg", "a") << 0;
        QTest::newRow("not parts") << Files{{"m/a.smil", message}, {"m/b.smil", ""}, {"m/sub/a.jpg", picture}}
                                   << QStringList{"--slides", "m"} << shows(guessed + "\n") << 0;
        QTest::newRow("parts of several folders")
            << Files{{"m.smil", message},
                     {"b/x.smil", message},
                     {"b/b", ""},
                     {"a/a.jpg", ""},
                     {"a/c.amr", "a"}}
            << QStringList{"--slides", "--parts", "b", "--parts=a", "m.smil"}
            << shows(", part a/a.jpg (image/jpeg)" + guessed +
                     "\n  unused: b/b (application/x-zerosize)\n  unused: a/c.amr (audio/AMR)\n")
            << 0;
        QTest::newRow("a folder and more") << Files{{"m/m", message}, {"m/a.jpg", ""}, {"b/a.jpg", ""}}
                                           << QStringList{"--check", "--parts", "b", "m"}
                                           << QByteArray("src \"a.jpg\" names several parts\n") << 1;
        QTest::newRow("no such part") << Files{{"m/m", message}, {"m/b", ""}} << QStringList{"--check", "m"}
                                      << QByteArray("src \"a.jpg\" names no part\n") << 1;
        Files many{{"m/m", message}, {"m/a.jpg", picture}};
        for (int i = 0; i < 10'000; ++i)
            many.insert(QStringLiteral("m/%1").arg(i, 5, 10, QChar(u'0')), i % 2 ? "GIF89a" : QByteArray());
        QTest::newRow("many files") << many << QStringList{"--slides", "m"}
                                    << QByteArray("unused: m/09999 (image/gif)\n") << 0;
    }
    void folders()
    {
        QFETCH(Files, files);
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, printed);
        QFETCH(int, exitCode);
        QTemporaryDir dir;
        for (auto it = files.cbegin(); it != files.cend(); ++it)
            QVERIFY(write(dir.filePath(it.key()), it.value()));
        const Said said = run(arguments, QByteArray(), dir.path());
        QCOMPARE(said.exitCode, exitCode);
        QVERIFY2(said.output.endsWith(printed), said.output.right(1000));
        QCOMPARE(said.errors, QByteArray());
    }

    // Each in one line, whatever else is asked for.
    void badPaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("error");
        QTest::newRow("missing") << "no/such\n\x1b" << QByteArray("no/such\\n\\x1b: ");
        QTest::newRow("never ends") << "/dev/zero" << QByteArray("/dev/zero: larger than 8 MiB");
        QTest::newRow("huge") << "huge" << QByteArray("huge: larger than 8 MiB");
        QTest::newRow("folder without files")
            << "empty" << QByteArray("empty: no SMIL document in this folder");
        QTest::newRow("folder without SMIL")
            << "parts" << QByteArray("parts: no SMIL document in this folder");
        QTest::newRow("folder with several")
            << "several" << QByteArray("several: 2 SMIL documents in this folder");
        QTest::newRow("folder whose SMIL is none")
            << "misnomer" << QByteArray("misnomer/a.smil: there is no text");
    }
    void badPaths()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, error);
        QTemporaryDir dir;
        const auto make = [&](const QString &name, const QByteArray &content) {
            return write(dir.filePath(name), content);
        };
        QVERIFY(make("good.smil", cleanDocument) && make("huge", "<smil/>") && make("parts/a.jpg", "a") &&
                make("several/a", "<smil/>") && make("several/b.txt", "<?xml?><!-- c --> <SMIL>") &&
                make("misnomer/a.smil", " ") && make("misnomer/b.txt", "a <smil>"));
        QVERIFY(QFile::resize(dir.filePath("huge"), 100'000'000) && QDir(dir.path()).mkdir("empty"));
        for (const QStringList &wishes : {QStringList(), {"--json"}, {"--check", "--rewrite"}}) {
            const Said said = run(wishes + QStringList{path, "good.smil"}, QByteArray(), dir.path());
            QCOMPARE(said.exitCode, 2);
            QVERIFY2(said.errors.startsWith("smilinfo: " + error), said.errors);
            QCOMPARE(said.errors.count('\n'), 1);
            QVERIFY2(said.output.contains(wishes.isEmpty() ? "good.smil: read" : "audio"), said.output);
            if (wishes.contains("--json")) {
                const QJsonObject first = jsonOf(said);
                QCOMPARE(first.keys(), QStringList({"error", "file"}));
                QVERIFY(first["file"].toString().startsWith(path));
            }
        }
        const Said said = run({"--parts", path, "good.smil"}, QByteArray(), dir.path());
        QCOMPARE(said.exitCode, QFileInfo(dir.path() + u'/' + path).isDir() ? 0 : 2);
        QVERIFY(said.output.contains("good.smil: read"));
    }

    // What leads out of a folder is left out of it, and what would never end is not begun.
    void linksStayInTheFolder()
    {
        QTemporaryDir dir;
        QVERIFY(write(dir.filePath("m/a.smil"), cleanDocument) &&
                write(dir.filePath("m-2/secret"), "<smil/>") && write(dir.filePath("m/x.jpg"), "x"));
        for (const auto &[target, name] :
             {std::pair("../m-2/secret", "a"), std::pair("/dev/zero", "b"), std::pair("nothing", "c"),
              std::pair("..", "d"), std::pair("../m/x.jpg", "y.jpg"), std::pair("z", "z")})
            QVERIFY(QFile::link(target, dir.filePath("m/") + name));
        QCOMPARE(mkfifo(QFile::encodeName(dir.filePath("m/pipe")).constData(), S_IRUSR | S_IWUSR), 0);
        const Said said = run({"--json", "m"}, QByteArray(), dir.path());
        QCOMPARE(said.exitCode, 0);
        QCOMPARE(said.errors, "smilinfo: m: links that lead out of the folder are left out: 2\n");
        QCOMPARE(jsonText(jsonOf(said)["parts"]), "[{\"contentType\":\"image/jpeg\",\"file\":\"m/x.jpg\"},"
                                                  "{\"contentType\":\"image/jpeg\",\"file\":\"m/y.jpg\"}]");
    }
};

QTEST_GUILESS_MAIN(TestMessageFolders)
#include "tst_messagefolders.moc"
