// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// What the program "smilinfo" says, where, and with which exit status.

#include "../support/answeredlines.h"
#include "program.h"

#include <VySmil/message/vysmilmedium.h>

#include <QDomDocument>
#include <QMetaEnum>
#include <QTemporaryDir>
#include <QTest>

#include <fstream>
#include <memory>
#include <string>

#include <sys/stat.h>

namespace {

/// What the program left behind, line by line; JSON in more lines than it has.
QStringList linesOf(const Said &said)
{
    QString output = QString::fromUtf8(said.output);
    if (output.startsWith(u'{'))
        output.replace("{", "\n{");
    QStringList lines{QString("exit %1").arg(said.exitCode)};
    for (const QString &line : output.split(u'\n'))
        lines << line;
    for (const QString &line : QString::fromUtf8(said.errors).split(u'\n', Qt::SkipEmptyParts))
        lines << "! " + line;
    lines.removeAll(QString());
    return lines;
}

/// What was written anew is XML, and is written the same again.
bool isWrittenAgain(const QStringList &options, const QByteArray &written)
{
    return QDomDocument().setContent(written) && run(options, written).output == written;
}

} // namespace

class TestSmilinfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // "=" begins a case with a folder of its own, "<" makes a file in it ("-": standard input), and "$" runs
    // the program there.
    void transcript()
    {
        std::unique_ptr<QTemporaryDir> dir;
        QByteArray input;
        const auto answersTo = [&](const QString &line) -> QStringList {
            const QString text = unescaped(line.mid(2));
            const QByteArray content = text.section(u' ', 1).toLatin1();
            if (line.startsWith(u'=')) {
                dir = std::make_unique<QTemporaryDir>();
                input.clear();
            } else if (line.startsWith("< - ")) {
                input = content;
            } else if (line.startsWith(u'<')) {
                if (!write(dir->filePath(text.section(u' ', 0, 0)), content))
                    return {"broken: the test cannot write"};
            } else {
                const QStringList arguments = text.split(u' ', Qt::SkipEmptyParts);
                const Said said = run(arguments, input, dir->path());
                const bool isBroken = said.exitCode == 0 && arguments.contains("--rewrite") &&
                                      !arguments.contains("--check") &&
                                      !isWrittenAgain(arguments.filter("--"), said.output);
                return isBroken ? QStringList("broken: written otherwise again") : linesOf(said);
            }
            return {};
        };
        QCOMPARE(wrongAnswer(TRANSCRIPT, answersTo), QString());
    }

    void manyFiles()
    {
        QTemporaryDir dir;
        for (int i = 0; i < 10'000; ++i)
            QVERIFY(write(dir.filePath(QStringLiteral("m/%1").arg(i, 5, 10, QChar(u'0'))),
                          i % 2 ? "GIF89a" : ""));
        QVERIFY(write(dir.filePath("m/m"), cleanDocument));
        QVERIFY(run({"--slides", "m"}, "", dir.path()).output.endsWith("unused: m/09999 (image/gif)\n"));
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
        const std::string latin = dir.filePath("m/").toStdString() + "\xe4.jpg";
        QVERIFY(std::ofstream(latin, std::ios::binary) << "x");
        const Said said = run({"--json", "m"}, QByteArray(), dir.path());
        QCOMPARE(said.exitCode, 0);
        QCOMPARE(said.errors, "smilinfo: m: links that lead out of the folder are left out: 2\n"
                              "smilinfo: m: names that are no UTF-8 are left out: 1\n");
        QVERIFY2(said.output.contains("[{\"contentType\":\"image/jpeg\",\"file\":\"m/x.jpg\"},"
                                      "{\"contentType\":\"image/jpeg\",\"file\":\"m/y.jpg\"}]"),
                 said.output);
    }

    void tellsOfAFullDisk()
    {
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        process.start(PROGRAM, {});
        process.write(cleanDocument);
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 2);
        QCOMPARE(process.readAllStandardError(), "smilinfo: standard output cannot be written\n");
    }

    // Every option, every member of what is printed and every guess is in the man page.
    void manPage()
    {
        const QString transcript = storedText(TRANSCRIPT);
        const QString manual = storedText(MAN_PAGE).remove(u'\\');
        QVERIFY(!manual.contains(QRegularExpression(QStringLiteral("[^\n]\\.(SH|TP|B|BR)\\b"))));
        const auto guesses = QMetaEnum::fromType<VySmilMedium::GUESS_FLAG>();
        for (int i = 0; i < guesses.keyCount(); ++i)
            QVERIFY(manual.contains(QString(guesses.key(i)).replace("GUESS_", "\"").toLower() + u'"'));
        const QString help = QString::fromUtf8(run({"--help"}).output);
        for (const auto &[source, name] : {std::pair(transcript, QStringLiteral("\"(\\w+)\":")),
                                           std::pair(help, QStringLiteral("--([a-z]+)"))}) {
            QRegularExpressionMatchIterator it = QRegularExpression(name).globalMatch(source);
            QVERIFY(it.hasNext());
            while (it.hasNext()) {
                const QString found = it.next().captured(1);
                const QRegularExpression bold(QStringLiteral("\n\\.B[RI]? .*\\b%1\\b").arg(found));
                QVERIFY2(found == "help-all" || manual.contains(bold), qPrintable(found));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestSmilinfo)
#include "tst_smilinfo.moc"
