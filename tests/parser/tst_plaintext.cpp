// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// What is read and what is refused, whichever way a text is read: as plain, or by Qt.

#include "../support/readtext.h"

#include <QDomDocument>
#include <QTest>

namespace {

QString nested(int depth)
{
    return QString("<par>").repeated(depth) + QString("</par>").repeated(depth);
}

QString attributes(int count, const char *value = "'>'")
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QString(" a%1=%2").arg(i).arg(value);
    return text;
}

} // namespace

class TestPlainText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bounds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isRead");
        const int depth = VySmilParser::MAX_DEPTH;
        const int most = VySmilParser::MAX_ATTRIBUTES;
        const QString deep = QString("<par>").repeated(2 * depth);
        QTest::newRow("depth 256") << around(nested(depth - 1)) << true;
        QTest::newRow("depth 257") << around(nested(depth)) << false;
        QTest::newRow("depth 256, again") << around(nested(depth - 1).repeated(3)) << true;
        QTest::newRow("empty element at 256")
            << around(QString("<par>").repeated(depth - 2) + "<img/><img a='/'/>" +
                      QString("</par>").repeated(depth - 2))
            << true;
        QTest::newRow("empty element at 257") << around(QString("<par>").repeated(depth - 1) + "<img />" +
                                                        QString("</par>").repeated(depth - 1))
                                              << false;
        QTest::newRow("many children") << around(QString("<par/>").repeated(1000)) << true;
        QTest::newRow("256 attributes") << around("<par" + attributes(most) + "/>") << true;
        QTest::newRow("257 attributes") << around("<par" + attributes(most + 1) + "/>") << false;
        QTest::newRow("257 in double quotes")
            << around("<par" + attributes(most + 1, "\"'\"") + "/>") << false;
        QTest::newRow("257 without a value") << around("<par" + attributes(most + 1, "''") + "/>") << false;
        QTest::newRow("bracket in double quotes") << around("<img alt=\"[\"/>") << true;
        QTest::newRow("end tag before the depth") << around("<par></par>" + nested(300)) << false;
        QTest::newRow("empty comment before the depth") << around("<!---->" + nested(300)) << false;
        QTest::newRow("comment that ends late")
            << around("<!--->" + QString("<par>").repeated(300) + "-->") << true;
        QTest::newRow("CDATA that ends late") << around("<![CDATA[]]<x []]>") << true;
        QTest::newRow("depth behind a doctype") << "<!DOCTYPE x><x>" + nested(depth - 1) + "</x>" << true;
        QTest::newRow("256 twice") << around(("<par" + attributes(most) + "></par>").repeated(2)) << true;
        QTest::newRow("markup in a comment") << around("<!--" + deep + "\"'-->") << true;
        QTest::newRow("comment opened in a comment")
            << around("<!-- <!- <![CDATA[ <? -->" + nested(depth)) << false;
        QTest::newRow("comment end shared with its start") << around("<!-->" + deep + "-->") << true;
        QTest::newRow("markup in CDATA") << around("<![CDATA[" + deep + "'<!--]]>") << true;
        QTest::newRow("markup after CDATA") << around("<![CDATA[]]]]>" + nested(depth)) << false;
        QTest::newRow("markup in a PI") << around("<?x " + deep + "'>?>") << true;
        QTest::newRow("quotes in text") << around("it's \"" + nested(3) + "'>") << true;
        QTest::newRow("markup in values") << around("<par a='/>' b=\"'[\" dur='\"&lt;!--'></par>") << true;
        QTest::newRow("doctype") << "<!DOCTYPE x SYSTEM '[\"'><x/>" << true;
        QTest::newRow("internal subset") << "<!DOCTYPE x SYSTEM '\"' []><x/>" << false;
        QTest::newRow("entities") << "<!DOCTYPE x [<!ENTITY a 'b'>]><x a='&a;'/>" << false;
        QTest::newRow("subset behind a PI")
            << "<?xml version='1.0'?><!-- '[' --><!DOCTYPE x [ ]><x/>" << false;
    }
    void bounds()
    {
        QFETCH(QString, text);
        QFETCH(bool, isRead);
        VySmilElemSmil root;
        for (const QString &variant : {text, leftToQt(text)}) {
            const int result = VySmilParser::parse(variant, &root);
            // A root other than "smil" is refused after all was read.
            QCOMPARE(result, !isRead ? -1 : text.startsWith("<smil") ? 0 : 3);
        }
    }

    // Texts that are plain but for one thing, each as it is read or refused.
    void plainButForOneThing_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const QStringList malformed{
            "<smil><a[/></smil>",
            "<smil><a`/></smil>",
            "<smil><a{/></smil>",
            "<smil><a:/></smil>",
            "<smil><></></smil>",
            "<smil/>=",
            "<smil/><!-- a -->>",
            "<smil></smil><!-- x",
            "<smil/><",
            "<smil =\"x\"/>",
            "<smil id \"x\"/>",
            "<smil id==\"x\"/>",
            "<smil id=/>",
            "<smil id=#x#/>",
            "<smil id=(x(/>",
            "<smil id=\"&\"/>",
            "<smil id=\"a</>",
            "<smil id=\"&&amp;\"/>",
            "<smil id=\"a&/>",
            "<smil id=\"&65;\"/>",
            "<smil id=\"&##65;\"/>",
            "<smil id=\"&#xy41;\"/>",
            "<smil" + QString(" a=\"1\"").repeated(40) + "/>",
        };
        for (const QString &text : malformed)
            QTest::newRow(qPrintable(text.left(30))) << text << "-1 0 smil";
        const auto value = [](const QString &written, const QString &read) {
            QTest::newRow(qPrintable(written.toUtf8().toPercentEncoding("&#;")))
                << "<smil id=\"" + written + "\"/>"
                << "0 2 smil[id=" + read + "]";
        };
        value("&quot;;", "\";");
        value("&apos;;", "';");
        value("&amp;;", "&;");
        value("&lt;;", "<;");
        value("&gt;;", ">;");
        value("&amp;#65;", "&#65;");
        value("&#65;;", "A;");
        value("&#65601;", "\U00010041");
        QTest::newRow("text that begins like the end of a comment") << "<smil><!----><par/>--></smil>"
                                                                    << "0 0 smil(par)";
        QTest::newRow("elements in an instruction")
            << around("<?a ?" + QString("<b>").repeated(3000) + "?>") << "0 0 smil";
    }
    void plainButForOneThing()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        VySmilElemSmil root;
        QCOMPARE(readText(text, root, false), expected);
    }

    // What looks plain is read like a DOM of the text, or refused with it.
    void readsAsADomDoes_data()
    {
        QTest::addColumn<QString>("text");
        const QStringList tags{
            "<a b='1'c='2'/>",
            "<!DOCTYPE a>",
            "<!DOCTYPE a\x10>",
            "<a b=\"1\" c='2' />",
            "<a b = '1'\n\tc\r='2'\n>",
            "<a / >",
            "< a/>",
            "<a></ a>",
            "<a></a >",
            "<a></b>",
            "<a",
            "<a b",
            "<a b=",
            "<a b='",
            "<a b='1",
            "<a b=1/>",
            "<a b/>",
            "<a 'b'/>",
            "<a b='1' b='2'/>",
            "<a B='1' b='2'/>",
            "<1/>",
            "<-a/>",
            "<a.-_9/>",
            "<:a/>",
            "<a:b c:d='1'/>",
            "<a xmlns='u' xml:lang='en'/>",
            "<a b='<'/>",
            "<a b='>'/>",
            "<a b='\"'/>",
            "<a b=\"'\"/>",
            "<a b='x\ty\nz'/>",
            "<a b='\x01'/>",
            "<>",
            "</>",
            "<a b='1'/",
            "<a/><!",
            "<!x>",
            "<!->",
            "<!-- -- -->",
            "<!-- --->",
            "<!-->",
            "<!--",
            "<!-- \x01 -->",
            "<!-- <a>&b; ]]> -->",
            "]]>",
            "]]",
            "a > b",
            "a & b",
            "&amp;",
            "&",
            "\x7f",
            "\r\n",
            "<?x?>",
            "<?xml version='1.0'?>",
        };
        const QStringList values{
            "&amp;&lt;&gt;&quot;&apos;",
            "&#65;&#x41;&#x4a;&#x4A;",
            "&#X41;",
            "&#;",
            "&#x;",
            "&#+65;",
            "&# 65;",
            "&#6 5;",
            "&#0;",
            "&#x1;",
            "&#9;x&#10;x&#13;",
            "&#xD7FF;",
            "&#xD800;",
            "&#xFFFD;",
            "&#xFFFE;",
            "&#x1F600;",
            "&#x110000;",
            "&#99999999999;",
            "&#00000065;",
            "&amp",
            "&AMP;",
            "&foo;",
            "&;",
            "&&;",
            "&#65",
            "&#32;x&#32;",
            " \u00a0x\u2003",
            QString("\U0001F600"),
            QString(QChar(0xd83d)),
            QString(QChar(0xfffe)),
            QString(QChar(0xfeff)),
            "\u0085",
        };
        for (const QString &tag : tags)
            QTest::newRow(tag.toUtf8().toPercentEncoding(" <>='\"/").constData())
                << around("<head/>" + tag + "<body/>");
        for (const QString &value : values)
            QTest::newRow(value.toUtf8().toPercentEncoding("&#;").constData())
                << around("<a b='" + value + "'/>");
        QTest::newRow("long names") << around(QString("<%1 %1='1'/>").arg(QString(5000, u'n')));
        QTest::newRow("names of good length") << around(QString("<%1 %1='1'/>").arg(QString(300, u'n')));
        QTest::newRow("behind the root") << around("") + "<!-- x --> \n<!-- y -->";
        QTest::newRow("element behind the root") << around("") + "<a/>";
        QTest::newRow("end tag behind the root") << around("") + "</smil>";
        QTest::newRow("byte order mark") << QChar(0xfeff) + around("<a/>");
        QTest::newRow("doctype behind the root") << "<smil/><!DOCTYPE smil>";
        QTest::newRow("two doctypes") << "<!DOCTYPE a><!DOCTYPE a><a/>";
    }
    void readsAsADomDoes()
    {
        QFETCH(QString, text);
        QDomDocument dom;
        VySmilElemSmil expected;
        int result = -1;
        if (dom.setContent(text.mid(text.indexOf("<smil"))))
            result = expected.fromDomElem(dom.documentElement(), false, nullptr, VySmil::SMIL_VER_DEFAULT);
        VySmilElemSmil root;
        QCOMPARE(VySmilParser::parse(text, &root), result);
        QCOMPARE(treeText(root), treeText(expected));
    }

    // Text that a quadratic reader would chew on for minutes.
    void hostileTextTakesNoTime()
    {
        VySmilElemSmil root;
        const auto status = [&root](const QString &text) { return VySmilParser::parse(text, &root); };
        QCOMPARE(status(QString("<smil>").repeated(500'000)), -1);
        QCOMPARE(status("<smil" + attributes(300'000) + "/>"), -1);
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

QTEST_GUILESS_MAIN(TestPlainText)
#include "tst_plaintext.moc"
