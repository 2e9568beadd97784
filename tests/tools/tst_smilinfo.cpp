// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// What the program "smilinfo" says, where, and with which exit status.

#include "program.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Characters that a terminal obeys, or that end a line.
bool hasControls(QString text)
{
    text.remove(u'\n').remove(u'\t');
    for (const QChar c : text) {
        if (c.category() == QChar::Other_Control || (c >= QChar(0x2028) && c <= QChar(0x202e)) ||
            (c >= QChar(0x2066) && c <= QChar(0x2069)))
            return true;
    }
    return false;
}

const QByteArray colorful =
    "<smil><head><layout><root-layout width='200' height='100' background-color='#ffffff'/><region "
    "id='Image' "
    "left='150' width='100' height='50' background-color='transparent'/></layout></head><body><par dur='4s'>"
    "<img src='a.jpg' region='Image'/><text src='b' end='2s' alt='B'><param name='foreground-color' "
    "value='blue'/></text></par></body></smil>";

} // namespace

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
        row("finding at its place", {}, odd, "color = \"1\"    <-- unknown attr");
        row("milliseconds", {}, odd, "(clock time 1.5s, 1500 ms)\n");
        row("does not read", {}, odd, "5000 ms)    <-- does not read");
        row("unknown element", {}, odd, "seq    <-- unknown element");
        row("length", {}, "<smil><region width='1%' left='x'/></smil>",
            "left = \"x\"    (0 pixels)    <-- does not read\n      @width = \"1%\"    (1 percent)\n");
        row("strict, attribute", {"--strict"}, odd, ": stopped at an attribute", 1);
        row("strict, element", {"--strict", "--rewrite"}, "<smil><seq/></smil>", ": stopped at an elem", 1);
        row("strict and clean", {"--strict"}, cleanDocument, "-: read; nothing found\n");
        row("rewrite", {"--rewrite"}, odd, "<smil>\n<par dur=\"5ss\">\n<img begin=\"1.5s\" color=\"1\"");
        row("slides", {"--slides"}, odd,
            "  320 x 480 pixels    <-- guessed: size, screen\n"
            "  slide 1: 6500 ms    <-- guessed: time\n    image \"\xc3\xa4\" from 1500 ms to the end of the "
            "slide, at 0,0 in 320 x 480, fit meet    <-- guessed: region\n");
        row("places and colours", {"--slides"}, colorful,
            "  200 x 100 pixels, background #ffffff\n  slide 1: 4000 ms\n"
            "    image \"a.jpg\" from 0 ms to the end of the slide, at 150,0 in 50 x 50, cut from 150,0 in "
            "100 x 50, background transparent\n"
            "    text \"b\" from 0 to 2000 ms, at 0,80 in 200 x 20, fit scroll, foreground #0000ff, alt "
            "\"B\"");
        row("findings", {"--check"}, odd, "error: par/img: begin \"1.5s\" is not in whole milliseconds\n", 1);
        row("relaxed findings", {"--check", "--level", "relaxed"}, odd, "warning: smil: has no body\n", 1);
        row("no findings", {"--check"}, cleanDocument, "");
        row("no such level", {"--check", "--level=mild\x1b"}, cleanDocument, "no such level: mild\\x1b", 2);
        row("no such option", {"--mild\x1b"}, cleanDocument, "'mild\\x1b'", 2);
        row("UTF-16", {}, QByteArray("\xff\xfe<\0s\0m\0i\0l\0/\0>\0", 16), "nothing found");
        row("Latin-1", {}, "<?xml version='1.0' encoding='ISO-8859-1'?><smil a='\xe4'/>", "a = \"\xc3\xa4\"");
        row("no XML", {}, "<smil><", "smilinfo: -: line 1, column 8: ", 2);
        row("another root", {}, "<html/>", "smilinfo: -: line 1, column 1: ", 2);
        row("blank", {"--strict"}, " ", "smilinfo: -: there is no text", 2);
        row("nothing", {}, "", "smilinfo: -: there is no text", 2);
        row("binary", {}, QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), "-: line 1, column 1: ", 2);
        row("nesting", {}, QByteArray("<smil>").repeated(50'000), "nested deeper than 256", 2);
        row("mended", {"--mend"}, "<SMIL><BODY><PAR DUR='5s'", "smil\n    body\n      par\n        @dur", 0);
        row("mended with a finding", {"--mend", "--check"}, "<smil><par>", "error: smil: has no body", 1);
        row("nothing to mend", {"--mend", "--strict"}, cleanDocument, "-: read; nothing found\n");
        row("beyond mending", {"--mend"}, "Tom & Ann", "smilinfo: -: line 1, column 1: ", 2);
        row("large", {}, "<smil>" + QByteArray(8 << 20, ' ') + "</smil>", "larger than 8 MiB", 2);
    }
    void documents()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, printed);
        QFETCH(int, exitCode);
        const Said said = run(arguments, document);
        QCOMPARE(said.exitCode, exitCode);
        QVERIFY2((exitCode == 2 ? said.errors : said.output).contains(printed), said.output + said.errors);
        QCOMPARE(said.errors.count('\n'), exitCode == 2 || said.errors.contains(": mended: ") ? 1 : 0);
        QCOMPARE(exitCode == 2 || printed.isEmpty(), said.output.isEmpty());
    }

    void rewrittenReadsTheSame()
    {
        const QByteArray odd = "<smil x='a&#x9b;b&amp;&#10;&quot;'><par><seq y='\xe2\x80\xae'/></par></smil>";
        const Said written = run({"--rewrite"}, odd);
        QCOMPARE(run({"--rewrite"}, written.output).output, written.output);
        QCOMPARE(jsonText(jsonOf(run({"--json"}, written.output))), jsonText(jsonOf(run({"--json"}, odd))));
    }

    // Whatever came in, what the filter writes is read by any reader, and the same again.
    void mendsWhatItWrites_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("wrong");
        QTest::newRow("bare name") << QByteArray("<smil><par><img nohref src='a'/></par></smil>")
                                   << QByteArray("line 1, column ");
        QTest::newRow("nothing wrong") << cleanDocument << QByteArray();
        QTest::newRow("ampersand") << QByteArray("<smil>\n<par>\n <img src='Tom & Ann.jpg'/></par></smil>")
                                   << QByteArray("line 3, column ");
        QTest::newRow("letter case") << QByteArray("<smil><PAR DUR='5s'><img SRC='a'/></PAR></smil>")
                                     << QByteArray("names in the wrong letter case");
        QTest::newRow("UTF-16") << QByteArray("\xff\xfe<\0s\0m\0i\0l\0>\0<\0p\0a\0r\0>\0", 24)
                                << QByteArray("line 1, column 12: ");
    }
    void mendsWhatItWrites()
    {
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, wrong);
        const Said said = run({"--mend", "--rewrite"}, document);
        QCOMPARE(said.exitCode, 0);
        QVERIFY2(wrong.isEmpty() ? said.errors.isEmpty()
                                 : said.errors.startsWith("smilinfo: -: mended: " + wrong),
                 said.errors);
        QDomDocument dom;
        QVERIFY2(dom.setContent(said.output), said.output);
        const Said again = run({"--mend", "--rewrite"}, said.output);
        QCOMPARE(again.output, said.output);
        QVERIFY2(again.errors.isEmpty(), again.errors);
        const QString mended = jsonOf(run({"--mend", "--json"}, document))["mended"].toString();
        QVERIFY(wrong.isEmpty() ? mended.isEmpty() : mended.startsWith(wrong));
    }

    // What a document holds neither makes lines nor reaches the terminal.
    void controlsAreShown_data()
    {
        QTest::addColumn<QString>("characters");
        QTest::addColumn<QByteArray>("shown");
        QTest::newRow("controls") << QStringLiteral("\n\r\x01\x1f\x7f\u0080\u009b\u009f")
                                  << QByteArray("\\n\\r\\x01\\x1f\\x7f\\x80\\x9b\\x9f");
        QTest::newRow("separators and directions")
            << QStringLiteral("\u2028\u2029\u202a\u202e\u2066\u2069")
            << QByteArray("\\u2028\\u2029\\u202a\\u202e\\u2066\\u2069");
        const QString harmless = QStringLiteral("\t\u00a0\u200f\u2027\u202f\u2065\u206a\U0001f600");
        QTest::newRow("harmless") << harmless << harmless.toUtf8();
    }
    void controlsAreShown()
    {
        QFETCH(QString, characters);
        QFETCH(QByteArray, shown);
        // XML takes no more of the controls than these.
        const auto isXml = [](char32_t c) { return c >= 0x20 || c == '\n' || c == '\r' || c == '\t'; };
        QString value = QStringLiteral("x");
        for (const char32_t c : characters.toUcs4()) {
            if (isXml(c))
                value += QStringLiteral("&#%1;").arg(c);
        }
        value += QStringLiteral("b.smil: error: faked");
        const QByteArray document =
            QStringLiteral("<smil a='%1'><head><layout><region id='%1' fit='%1' width='%1'/>"
                           "</layout></head><body><par dur='%1'><img src='%1' alt='%1' "
                           "region='%1' begin='%1'/></par></body></smil>")
                .arg(value)
                .toUtf8();
        QTemporaryDir dir;
        const QString name = QStringLiteral("x%1y").arg(characters);
        QVERIFY(write(dir.filePath(name), document));
        const QByteArray plain = QByteArray(document).replace(value.toUtf8(), "&#228; ");
        for (const QStringList &wishes :
             {QStringList(), {"--slides"}, {"--check"}, {"--rewrite"}, {"--json", "--check"}}) {
            const Said said = run(wishes + QStringList{name}, QByteArray(), dir.path());
            const QString output = QString::fromUtf8(said.output);
            QVERIFY(said.exitCode < 2);
            QVERIFY2(!hasControls(output), said.output);
            QCOMPARE(said.output.count('\n'), run(wishes + QStringList{"-"}, plain).output.count('\n'));
            if (wishes.contains("--json"))
                QCOMPARE(jsonOf(said)["file"].toString(), name);
            else if (wishes.isEmpty() || wishes.contains("--check"))
                QVERIFY2(said.output.contains('x' + shown + "y: "), said.output);
            else if (wishes.contains("--slides"))
                QVERIFY2(said.output.contains("alt \"x" + QByteArray(shown).replace("\\x01\\x1f", "")),
                         said.output);
        }
    }

    // Every member that the man page names, with its value.
    void printsJson()
    {
        QTemporaryDir dir;
        QVERIFY(write(dir.filePath("a.smil"), QByteArray(colorful).replace("'100' h", "'50%' h") + ">") &&
                write(dir.filePath("a.jpg"), "") && write(dir.filePath("n\xc3\xa9.vcf"), ""));
        const Said said = run({"--json", "--check", "--mend", "--parts", ".", "a.smil"}, "", dir.path());
        QCOMPARE(said.exitCode, 1);
        const QJsonObject object = jsonOf(said);
        QCOMPARE(object["file"].toString(), "a.smil");
        QCOMPARE(object["result"].toInt(-1), 0);
        QCOMPARE(object["status"].toInt(-1), 1);
        QVERIFY(object["mended"].toString().startsWith("line 1, column "));
        QCOMPARE(jsonText(object["parts"]),
                 QString("[{\"contentType\":\"image/jpeg\",\"file\":\"./a.jpg\"},"
                         "{\"contentType\":\"text/vcard\",\"file\":\"./n\u00e9.vcf\"}]"));
        const QJsonValue head = object["tree"]["children"][0];
        QCOMPARE(jsonText(head["children"][0]["children"][1]),
                 "{\"attributes\":[{\"known\":false,\"name\":\"background-color\",\"value\":\"transparent\"},"
                 "{\"known\":true,\"name\":\"height\",\"pixels\":50,\"reads\":true,\"value\":\"50\"},"
                 "{\"known\":true,\"name\":\"id\",\"value\":\"Image\"},"
                 "{\"known\":true,\"name\":\"left\",\"pixels\":150,\"reads\":true,\"value\":\"150\"},"
                 "{\"known\":true,\"name\":\"width\",\"percent\":50,\"reads\":true,\"value\":\"50%\"}],"
                 "\"children\":[],\"known\":true,\"name\":\"region\"}");
        QCOMPARE(object["tree"]["children"][1]["children"][0]["attributes"][0]["time"].toString(), "4s");
        QCOMPARE(
            jsonText(object["show"]),
            QString("{\"background\":\"#ffffff\",\"guesses\":[],\"height\":100,\"slides\":[{"
                    "\"durationMs\":4000,\"guesses\":[],\"media\":[{\"alt\":\"\",\"area\":[150,0,100,50],"
                    "\"background\":\"transparent\",\"beginMs\":0,\"endMs\":-1,\"fit\":\"\",\"guesses\":[],"
                    "\"kind\":\"image\",\"part\":\"./a.jpg\",\"rect\":[150,0,50,50],\"region\":\"Image\","
                    "\"src\":\"a.jpg\"},{\"alt\":\"B\",\"area\":[0,80,200,20],\"beginMs\":0,\"endMs\":2000,"
                    "\"fit\":\"scroll\",\"foreground\":\"#0000ff\",\"guesses\":[\"region\",\"part\"],"
                    "\"kind\":\"text\",\"rect\":[0,80,200,20],\"region\":\"\",\"src\":\"b\"}]}],"
                    "\"unusedParts\":[\"./n\u00e9.vcf\"],\"width\":200}"));
        QCOMPARE(jsonText(object["findings"][1]),
                 "{\"attribute\":\"\",\"message\":\"mixes pixels and percent\","
                 "\"path\":\"head/layout/region\",\"rule\":\"RULE_REGION_UNITS\",\"severity\":\"error\"}");
        QVERIFY(!jsonOf(run({"--json"}, cleanDocument)).contains("findings"));

        QFile page(MAN_PAGE);
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString manual = QString::fromUtf8(page.readAll()).remove(u'\\');
        QVERIFY(!manual.contains(QRegularExpression(QStringLiteral("[^\n]\\.(SH|TP|B|BR)\\b"))));
        const QString help = QString::fromUtf8(run({"--help"}).output);
        for (const auto &[source, name] :
             {std::pair(QString::fromUtf8(said.output), QStringLiteral("\"(\\w+)\":")),
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
