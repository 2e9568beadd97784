// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/readtext.h"

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

    void nullRoots()
    {
        VySmil::STATUS_CODE status = VySmil::STATUS_INVALID_ELEMENT;
        QCOMPARE(VySmilParser::parse("<smil/>", nullptr, true, &status), 3);
        QCOMPARE(status, VySmil::STATUS_OK);
        QString out = QStringLiteral("kept");
        QCOMPARE(VySmilParser::assemble(nullptr, out), 3);
        QCOMPARE(out, QStringLiteral("kept"));
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

    // Text that a quadratic reader would chew on for minutes.
    void hostileTextTakesNoTime()
    {
        VySmilElemSmil root;
        const auto status = [&root](const QString &text) { return VySmilParser::parse(text, &root); };
        QString numbered;
        for (int i = 0; i < 300'000; ++i)
            numbered += QString(" a%1='>'").arg(i);
        QCOMPARE(status(QString("<smil>").repeated(500'000)), -1);
        QCOMPARE(status("<smil" + numbered + "/>"), -1);
        QCOMPARE(status("<smil " + QString("'\"").repeated(300'000)), -1);
        QCOMPARE(status("<smil><!" + QString("<!").repeated(300'000)), -1);
        QCOMPARE(status(around("<text src='" + QString("&lt;&#65;").repeated(600'000) + "'/>")), 0);
    }

    // Whatever a document is cut down to, it is read or refused, never half of each.
    void everyPrefixIsSafe()
    {
        const QString text =
            "<?xml version='1.0'?>" + around("<body><par a='&lt;'/><!-- x --><![CDATA[x]]></body>");
        for (qsizetype length = 0; length < text.size(); ++length) {
            VySmilElemSmil root;
            const QString expected = length == 0 ? "3 0 smil" : "-1 0 smil";
            QCOMPARE(readText(text.left(length), root, false), expected);
        }
    }
};

QTEST_GUILESS_MAIN(TestVySmilParser)
#include "tst_vysmilparser.moc"
