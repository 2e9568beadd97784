// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/readtext.h"
#include "../support/storedanswer.h"

#include <QDir>
#include <QDomDocument>
#include <QRandomGenerator>
#include <QTest>

#include <memory>

namespace {

const auto noVersion = static_cast<VySmil::SMIL_VERSION>(7);

/// A written tree: result and status in front of the text, which is appended to what is there.
QString writtenText(const VySmilElemBase &elem, bool strict,
                    VySmil::SMIL_VERSION version = VySmil::SMIL_VER_DEFAULT)
{
    QString out = QStringLiteral("^");
    auto status = VySmil::STATUS_OK;
    const int result = elem.toString(out, strict, &status, version);
    return QStringLiteral("%1 %2 %3").arg(result).arg(status).arg(out.replace(u'\n', u'~'));
}

QString randomValue(QRandomGenerator &random)
{
    static const char16_t awkward[] = {
        u'a',   u'"',   u'\'',  u'&',   u'<',   u'>',   u';', u' ',   u'\t',  u'\n',  u'\r',
        u'\0',  0x01,   0x0b,   0x1f,   0x7f,   0x85,   0xa0, 0x2028, 0xd83d, 0xde00, 0xd800,
        0xdc00, 0xfdd0, 0xfeff, 0xfffd, 0xfffe, 0xffff, u']', u'-',   u'%',   0x00e9, u'#',
    };
    QString value;
    for (int length = random.bounded(9); length > 0; --length)
        value += QChar(awkward[random.bounded(int(std::size(awkward)))]);
    return value;
}

/// What a value is once it was written and read.
QString carried(const QString &value)
{
    QString text = value.trimmed();
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
        else if (QChar::isSurrogate(c) || c >= 0xfffe || (c < 0x20 && c != '\t' && c != '\n' && c != '\r'))
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

/// Grows the same tree twice: with random values, and with what is left of them after writing and reading.
void grow(VySmilElemBase &elem, VySmilElemBase &expected, int depth, QRandomGenerator &random)
{
    for (const char *name :
         {"left", "width", "fit", "id", "content", "name", "dur", "src", "alt", "region"}) {
        const QString value = randomValue(random);
        if (!elem.isValidAttr(name, VySmil::SMIL_VER_DEFAULT) || random.bounded(3) == 0)
            continue;
        elem.setAttribute(name, value);
        if (!carried(value).isEmpty())
            expected.setAttribute(name, carried(value));
    }
    static const char *const names[] = {"head", "body",  "layout", "root-layout", "region", "meta", "par",
                                        "img",  "audio", "text",   "video",       "ref",    "smil"};
    for (int i = depth > 0 ? random.bounded(5) : 0; i > 0; --i) {
        const QString name = names[random.bounded(int(std::size(names)))];
        VySmilElemBase *child = VySmilElemBase::newElem(name);
        VySmilElemBase *expectedChild = VySmilElemBase::newElem(name);
        elem.getSubElements()->append(child);
        expected.getSubElements()->append(expectedChild);
        grow(*child, *expectedChild, depth - 1, random);
    }
}

} // namespace

class TestVySmilParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("strict");
        QTest::addColumn<QString>("loose");
        const auto row = [](const char *name, const QString &text, const char *strict, const char *loose) {
            QTest::newRow(name) << text << QString(strict) << QString(loose);
        };
        // The root has the attribute "old" and the child "meta" before each reading.
        const char *const untouched = "3 0 smil[old=1](meta)";
        const char *const refused = "-1 0 smil[old=1]";
        row("empty", "", untouched, untouched);
        row("blank", QString(" \n\t") + QChar(0xa0), untouched, untouched);
        row("no xml", "hello", refused, refused);
        row("cut off", "<smil><body>", refused, refused);
        row("two roots", "<smil/><smil/>", refused, refused);
        row("attribute twice", "<smil><par dur='1' dur='2'/></smil>", refused, refused);
        row("nothing in it", "<smil/>", "0 0 smil[old=1]", "0 0 smil[old=1]");
        row("whole",
            around("<head><layout><region id='I' width=' 5 '/></layout></head><body><par dur='5s'>"
                   "<img src='a&amp;b&#x20AC;'/>text<!-- note --><?pi?><![CDATA[<par/>]]></par></body>"),
            "0 0 smil[old=1](head(layout(region[id=I width=5])) body(par[dur=5s](img[src=a&b€])))",
            "0 0 smil[old=1](head(layout(region[id=I width=5])) body(par[dur=5s](img[src=a&b€])))");
        row("before the root", "junk <?xml version='1.0'?><!DOCTYPE smil [<!ENTITY e 'x'>]>  <smil/> ",
            "0 0 smil[old=1]", "0 0 smil[old=1]");
        row("white space between markup",
            "<smil>\r\n<body>\t<par> <img/> </par>\n<!-- --> <?p?> <![CDATA[ ]]> </body> </smil> <!-- -->",
            "0 0 smil[old=1](body(par(img)))", "0 0 smil[old=1](body(par(img)))");
        row("no-break space behind the root", QString("<smil/>") + QChar(0xa0) + "<!-- -->", refused,
            refused);
        row("text behind the root", "<smil/> x <!-- -->", refused, refused);
        row("a character behind the root", "<smil/>!<!-- -->", refused, refused);
        row("controls", around("\x0e<body/>"), refused, refused);
        row("vertical tab", around("\x0b<body/>"), refused, refused);
        row("a tag that begins like the root", "<smi/><smil/>", "0 0 smil[old=1]", "0 0 smil[old=1]");
        row("malformed behind a finding", "<smil a='1'><foo/></par></smil>", refused, refused);
        row("open behind a finding", "<smil a='1'><PAR/><body>", refused, refused);
        row("elements under one that does not fit", around("<body/><PAR><a><b/></a></PAR><head/>"),
            "3 0 smil[old=1](body)", "0 0 smil[old=1](body par head)");
        row("a character before the root", "x<smil/>", "0 0 smil[old=1]", "0 0 smil[old=1]");
        row("root in a comment", "<!-- <smil --><smil/>", refused, refused);
        row("capital root", "<SMIL><body/></SMIL>", "3 0 smil[old=1]", "3 0 smil[old=1]");
        row("other root", "<?xml version='1.0'?><html/>", "3 0 smil[old=1]", "3 0 smil[old=1]");
        row("longer root", "<smilx/>", "3 0 smil[old=1]", "3 0 smil[old=1]");
        row("root attribute", "<smil xmlns='x' old='2' a='3'><body/></smil>", "2 2 smil[old=1]",
            "0 2 smil[a=3 old=2 xmlns=x](body)");
        row("unknown child", around("<head/><body><par><foo b='1'><img/></foo></par></body>"),
            "1 1 smil[old=1](head)", "0 1 smil[old=1](head body(par(?foo[b=1](img))))");
        row("capital child", around("<head/><body><PAR dur='1'><img/></PAR><par/></body>"),
            "3 0 smil[old=1](head)", "0 0 smil[old=1](head body(par par))");
        row("bad attribute", around("<head/><body><par dur='1s' foo='2'><img/></par></body>"),
            "2 2 smil[old=1](head)", "0 2 smil[old=1](head body(par[dur=1s foo=2](img)))");
        row("last finding counts", around("<foo/><par x='1'/><bar/><body/>"), "1 1 smil[old=1]",
            "0 1 smil[old=1](?foo par[x=1] ?bar body)");
        row("attributes before children", around("<par x='1'><foo/></par>"), "2 2 smil[old=1]",
            "0 1 smil[old=1](par[x=1](?foo))");
        row("empty value", around("<par dur=' &#9;' bad=''/>"), "2 2 smil[old=1]", "0 2 smil[old=1](par)");
        row("nohref", around("<region nohref='' id='r'/>"), "2 2 smil[old=1]",
            "0 2 smil[old=1](region[id=r nohref=nohref])");
        row("references in values", around("<img alt='&quot;&lt;&#10;&gt;'/>"),
            "0 0 smil[old=1](img[alt=\"<\n>])", "0 0 smil[old=1](img[alt=\"<\n>])");
    }
    void reads()
    {
        QFETCH(QString, text);
        for (const char *mode : {"strict", "loose"}) {
            QFETCH(QString, strict);
            QFETCH(QString, loose);
            const bool isStrict = qstrcmp(mode, "strict") == 0;
            VySmilElemSmil root;
            root.setAttribute("old", "1");
            root.getSubElements()->append(VySmilElemBase::newElem("meta"));
            QCOMPARE(readText(text, root, isStrict), isStrict ? strict : loose);
            // Reading again replaces what the first reading left, but for the attributes; behind a processing
            // instruction Qt reads, to the same effect.
            readText(text, root, isStrict);
            QCOMPARE(readText(leftToQt(text), root, isStrict), isStrict ? strict : loose);
        }
        QCOMPARE(VySmilParser::parse(text, nullptr, true), 3);
    }

    // Attributes are handled in ascending order of their names, whatever the order in the document.
    void strictStopsKeepEarlierAttributes()
    {
        for (const char *order : {"alt='1' bad='2' src='3'", "src='3' bad='2' alt='1'"}) {
            QDomDocument dom;
            QVERIFY(dom.setContent(QString("<img %1/>").arg(order)));
            VySmilElemMediaObjImg img;
            QCOMPARE(img.fromDomElem(dom.documentElement(), true, nullptr, VySmil::SMIL_VER_DEFAULT), 2);
            QCOMPARE(treeText(img), QString("img[alt=1]"));
        }
    }

    void nullRootStillResetsTheStatus()
    {
        VySmil::STATUS_CODE status = VySmil::STATUS_INVALID_ELEMENT;
        QCOMPARE(VySmilParser::parse("<smil/>", nullptr, true, &status), 3);
        QCOMPARE(status, VySmil::STATUS_OK);
    }

    void unknownVersions()
    {
        VySmilElemSmil root;
        const QString text = around("<head id='h'/><body><par dur='1s'/></body>");
        QCOMPARE(readText(text, root, true, noVersion), QString("1 1 smil"));
        QCOMPARE(readText(text, root, false, noVersion), QString("0 2 smil(head[id=h] body(par[dur=1s]))"));
        QCOMPARE(writtenText(root, true, noVersion), QString("1 1 ^"));
        QVERIFY(writtenText(root, false, noVersion).startsWith("0 2 ^<smil>~<head id=\"h\">~"));
    }

    // The root is the client's, and may be of a class of its own.
    void clientRootsAreAsked()
    {
        struct Html : VySmilElemSmil
        {
            QString getElemType() const override { return "html"; }
            bool isValidAttr(const QString &name, VySmil::SMIL_VERSION) const override
            {
                asked.append(name);
                return name != "bad";
            }
            mutable QStringList asked;
        };
        for (const char *before : {"", "<?x?>"}) {
            Html root;
            const QString text = before + QString("<html lang=' en ' dir='' bad='1' z='2'><par/></html>");
            QCOMPARE(VySmilParser::parse(text, &root, true), 1);
            QCOMPARE(VySmilParser::parse(text, &root), 0);
            QCOMPARE(root.asked, QStringList({"bad", "dir", "lang", "z"}));
            QCOMPARE(treeText(root), QString("html[bad=1 lang=en z=2](par)"));
        }
    }

    void writes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("strict");
        QTest::addColumn<QString>("loose");
        const auto row = [](const char *name, const QString &text, const char *strict, const char *loose) {
            QTest::newRow(name) << text << QString(strict) << QString(loose);
        };
        row("nothing in it", "<smil/>", "0 0 ^<smil>~</smil>~", "0 0 ^<smil>~</smil>~");
        row("name order", around("<body><img src='b' alt='a'/><par/></body>"),
            "0 0 ^<smil>~<body>~<img alt=\"a\" src=\"b\">~</img>~<par>~</par>~</body>~</smil>~",
            "0 0 ^<smil>~<body>~<img alt=\"a\" src=\"b\">~</img>~<par>~</par>~</body>~</smil>~");
        row("escapes", around("<img alt='&amp;&lt;&gt;&quot;&apos;&#9;&#10;&#13;.'/>"),
            "0 0 ^<smil>~<img alt=\"&amp;&lt;>&quot;'&#9;&#10;&#13;.\">~</img>~</smil>~",
            "0 0 ^<smil>~<img alt=\"&amp;&lt;>&quot;'&#9;&#10;&#13;.\">~</img>~</smil>~");
        row("unknown element", around("<body><foo><img/></foo></body>"), "1 1 ^<smil>~<body>~",
            "0 1 ^<smil>~<body>~<foo>~<img>~</img>~</foo>~</body>~</smil>~");
        row("bad attribute", around("<par dur='5s' foo='1'><img/></par>"), "2 2 ^<smil>~<par dur=\"5s\"",
            "0 2 ^<smil>~<par dur=\"5s\" foo=\"1\">~<img>~</img>~</par>~</smil>~");
        row("nohref", around("<region nohref='x' top='1'/>"), "2 2 ^<smil>~<region",
            "0 2 ^<smil>~<region nohref top=\"1\">~</region>~</smil>~");
    }
    void writes()
    {
        QFETCH(QString, text);
        QFETCH(QString, strict);
        QFETCH(QString, loose);
        VySmilElemSmil root;
        VySmilParser::parse(text, &root);
        QCOMPARE(writtenText(root, true), strict);
        QCOMPARE(writtenText(root, false), loose);
        QString out = QStringLiteral("kept");
        QCOMPARE(VySmilParser::assemble(nullptr, out), 3);
        QCOMPARE(out, QStringLiteral("kept"));
        QCOMPARE(VySmilParser::assemble(&root, out), 0);
        QVERIFY(out.startsWith("kept<smil"));
    }

    void blanksAroundStoredTexts_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("written");
        QTest::newRow("trimmed") << QStringList{" dur", " 5s "} << " dur=\"5s\"";
        QTest::newRow("blank value") << QStringList{"dur", " \n"} << "";
        QTest::newRow("trimmed name wins")
            << QStringList{" dur", "1", "dur", "2", "dur ", "3"} << " dur=\"2\"";
        QTest::newRow("but not without a value")
            << QStringList{" dur", "1", "dur", " ", "dur ", "3"} << " dur=\"1\"";
        QTest::newRow("first with a value")
            << QStringList{"  dur", "", " dur", "2", "dur ", "3"} << " dur=\"2\"";
        QTest::newRow("controls") << QStringList{"dur", QString("a\x1") + QChar(0xd800) + QChar(0xffff)}
                                  << QString(" dur=\"a%1%1%1\"").arg(QChar(0xfffd));
    }
    void blanksAroundStoredTexts()
    {
        QFETCH(QStringList, entries);
        QFETCH(QString, written);
        VySmilElemPar par;
        for (qsizetype i = 0; i < entries.size(); i += 2)
            par.setAttribute(entries[i], entries[i + 1]);
        QCOMPARE(writtenText(par, true), "0 0 ^<par" + written + ">~</par>~");
        par.setAttribute(" ", "x");
        QCOMPARE(writtenText(par, true), QString("2 2 ^<par"));
        QCOMPARE(writtenText(par, false), "0 2 ^<par" + written + ">~</par>~");
    }

    // A class of the client's may write itself, and end the walk.
    void clientElementsAreAsked()
    {
        struct Failing : VySmilElemUnknown
        {
            explicit Failing(int code) : result(code) { setElemType("par"); }
            int toString(QString &out, bool, VySmil::STATUS_CODE *, VySmil::SMIL_VERSION) const override
            {
                out += u'!';
                return result;
            }
            int result;
        };
        for (const int result : {-7, 0, 1, 7}) {
            VySmilElemSmil root;
            root.getSubElements()->append(new Failing(result));
            const QString stopped = QString("%1 0 ^<smil>~!").arg(result);
            const QString whole = "0 0 ^<smil>~!</smil>~";
            QCOMPARE(writtenText(root, true), result == 0 ? whole : stopped);
            QCOMPARE(writtenText(root, false), result < 0 ? stopped : whole);
        }
    }

    void writtenTreesReadBack()
    {
        QRandomGenerator random(20261122);
        for (int i = 0; i < 400; ++i) {
            VySmilElemSmil tree;
            VySmilElemSmil expected;
            grow(tree, expected, 5, random);
            QString text;
            VySmil::STATUS_CODE status = VySmil::STATUS_OK;
            QCOMPARE(VySmilParser::assemble(&tree, text, true, &status), 0);
            QCOMPARE(status, VySmil::STATUS_OK);
            VySmilElemSmil readBack;
            QCOMPARE(readText(text, readBack, true), "0 0 " + treeText(expected));
            QString again;
            VySmilParser::assemble(&readBack, again, true);
            QCOMPARE(again, text);
        }
    }

    // Each document of the corpus has its answer beside it: strict and loose reading, then the text written.
    void corpus_data()
    {
        QTest::addColumn<QString>("path");
        const QDir dir(CORPUS);
        const QStringList names = dir.entryList({"*.smil"});
        QVERIFY(!names.isEmpty());
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << dir.filePath(name);
    }
    void corpus()
    {
        QFETCH(QString, path);
        const QString text = storedText(path);
        VySmilElemSmil root;
        QString answer = readText(text, root, true) + u'\n';
        answer += readText(text, root, false) + u'\n';
        VySmilParser::assemble(&root, answer);
        const QString answerPath = path.chopped(4) + "answer";
        QVERIFY(!renewsAnswers() || storeText(answerPath, answer));
        QCOMPARE(answer, storedText(answerPath));
    }
};

QTEST_GUILESS_MAIN(TestVySmilParser)
#include "tst_vysmilparser.moc"
