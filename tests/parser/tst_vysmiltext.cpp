// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/readtext.h"
#include "../support/storedanswer.h"
#include "../support/textproperties.h"

#include <QDir>
#include <QMetaEnum>
#include <QRandomGenerator>
#include <QStringEncoder>
#include <QTest>

namespace {

QByteArray encoded(QStringConverter::Encoding encoding, const QString &text)
{
    return QStringEncoder(encoding)(text);
}

/// With a byte order mark.
QByteArray marked(QStringConverter::Encoding encoding, const QString &text)
{
    return QStringEncoder(encoding, QStringConverter::Flag::WriteBom)(text);
}

/// The sources of a text, a slide after a "|".
QString shownIn(const QString &text)
{
    VySmilElemSmil root;
    VySmilSlideShow show;
    if (VySmilParser::parse(text, &root) == 0)
        show.fromTree(root);
    QString shown;
    for (const VySmilSlide &slide : std::as_const(show.slides)) {
        shown += u'|';
        for (const VySmilMedium &medium : slide.media)
            shown += ' ' + medium.src;
    }
    return shown;
}

QString nested(int depth)
{
    return QString("<par>").repeated(depth) + QString("</par>").repeated(depth);
}

QString attributes(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += QString(" a%1=''").arg(i);
    return text;
}

} // namespace

class TestVySmilText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("charset");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QByteArray &bytes, const char *charset,
                            const QString &text) {
            QTest::newRow(name) << bytes << QByteArray(charset) << text;
        };
        const QString text = "<smil>\u00e4\u20ac\U0001f600</smil>";
        const QByteArray utf8 = text.toUtf8();
        static const struct
        {
            const char *name;
            QStringConverter::Encoding encoding;
        } wides[] = {{"UTF-16LE", QStringConverter::Utf16LE},
                     {"UTF-16BE", QStringConverter::Utf16BE},
                     {"UTF-32LE", QStringConverter::Utf32LE},
                     {"UTF-32BE", QStringConverter::Utf32BE}};
        for (const auto &[name, encoding] : wides) {
            const QByteArray bytes = encoded(encoding, text);
            const QByteArray nul = encoded(encoding, QString(QChar(0)));
            QTest::addRow("%s with a mark", name)
                << marked(encoding, text) << QByteArray("windows-1252") << text;
            QTest::addRow("%s behind a mark without a tag", name)
                << marked(encoding, "\u4e3c") << QByteArray("utf-8") << QString("\u4e3c");
            QTest::addRow("%s by its first tag", name) << bytes << QByteArray("utf-8") << text;
            QTest::addRow("%s behind blanks", name)
                << encoded(encoding, " \t\r\n" + text) << QByteArray() << QString(" \t\r\n" + text);
            QTest::addRow("%s by its label", name)
                << encoded(encoding, "x" + text) << QByteArray(name).toLower() << QString("x" + text);
            QTest::addRow("%s with NULs", name) << bytes + nul + nul << QByteArray() << text;
            QTest::addRow("%s with part of a NUL", name)
                << bytes + nul + nul.chopped(1) << QByteArray() << text;
            QTest::addRow("%s with part of a unit", name)
                << encoded(encoding, "<\u4e3c\u4e3c").chopped(1) << QByteArray() << QString("<\u4e3c");
            QTest::addRow("%s of a lone tag", name) << encoded(encoding, "<") << QByteArray() << QString("<");
            QTest::addRow("%s where it is not", name) << utf8 << QByteArray(name) << text;
        }
        row("half a surrogate pair", encoded(QStringConverter::Utf16LE, text.left(9)) + QByteArray(2, '\0'),
            "", text.left(8));
        row("nothing", "", "utf-16", "");
        row("NULs alone", QByteArray(9, '\0'), "", "");
        row("UTF-8", utf8, "", text);
        row("UTF-8 with a mark", "\xEF\xBB\xBF" + utf8, "iso-8859-1", text);
        row("UTF-8 with NULs", utf8 + QByteArray(3, '\0'), "", text);
        row("UTF-8 with a NUL inside", QByteArray("<a\0>", 4), "", QString("<a") + QChar(0) + ">");
        row("half a character", utf8 + "\xE2\x82", "", text);
        row("half a character and NULs", utf8 + QByteArray("\xF0\x9F\0\0", 4), "", text);
        row("no UTF-8", "<a \xE4\x80\xE2\x82", "", "<a \u00e4\u20ac\u00e2\u201a");
        row("no UTF-8 behind its mark", "\xEF\xBB\xBF<\xFC \x81>", "", "<\u00fc \u0081>");
        row("no UTF-8 although labelled", "<\xFC>", "UTF-8", "<\u00fc>");
        row("no UTF-8 although declared", "<?xml encoding='utf8'?>\xFC>", "",
            "<?xml encoding='utf8'?>\u00fc>");
        row("labelled", "<\xA4>", "ISO-8859-15", "<\u20ac>");
        row("labelled in quotes and blanks", "<\xA4>", " \" iso-8859-15 \" ", "<\u20ac>");
        row("labelled in single quotes", "<\xA4>", "'ISO_8859-15'", "<\u20ac>");
        row("labelled against the declaration", "<?xml encoding='UTF-8'?>\xA4", "iso-8859-15",
            "<?xml encoding='UTF-8'?>\u20ac");
        row("declared", "<?xml version='1.0' encoding='iso-8859-15'?>\xA4", "",
            "<?xml version='1.0' encoding='iso-8859-15'?>\u20ac");
        row("declared behind blanks, with others", " \r\n<?xml\tencoding = \"ISO-8859-15\" x=''?>\xA4", "",
            " \r\n<?xml\tencoding = \"ISO-8859-15\" x=''?>\u20ac");
        row("declared behind a character", ".<?xml encoding='iso-8859-15'?>\xA4", "",
            ".<?xml encoding='iso-8859-15'?>\u00a4");
        row("declared for a stylesheet", "<?xml-x encoding='iso-8859-15'?>\xA4", "",
            "<?xml-x encoding='iso-8859-15'?>\u00a4");
        row("declared in something else", "<?xml xencoding='iso-8859-15'?>\xA4", "",
            "<?xml xencoding='iso-8859-15'?>\u00a4");
        row("UTF-16 declared where it is not", "<?xml encoding='UTF-16'?>\xC3\xA4", "",
            "<?xml encoding='UTF-16'?>\u00e4");
        row("labels that say nothing", "<?xml encoding='iso-8859-15'?>\xA4", "us-ascii",
            "<?xml encoding='iso-8859-15'?>\u20ac");
        for (const char *label : {"US-ASCII", "ascii", "Locale", "system", "", "-", "\"\"", "'",
                                  "no-such-set", "utf-8,version=1", "../utf-8"})
            QTest::addRow("label <%s>", label)
                << QByteArray("<?xml encoding='iso-8859-15'?>\xA4") << QByteArray(label)
                << QString("<?xml encoding='iso-8859-15'?>\u20ac");
        for (const char *label : {"UCS-2", "ISO-10646-UCS-2", "iso_10646_ucs_2", "utf16"}) {
            QTest::addRow("label %s", label)
                << marked(QStringConverter::Utf16BE, text) << QByteArray(label) << text;
            QTest::addRow("label %s without a tag", label)
                << encoded(QStringConverter::Utf16, "ab") << QByteArray(label) << QString("ab");
            QTest::addRow("label %s where it is not", label) << utf8 << QByteArray(label) << text;
        }
        row("a lone tag labelled UTF-16", "<", "utf-16", "<");
    }
    void decodes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, charset);
        QFETCH(QString, text);
        QCOMPARE(VySmilText::decode(bytes, charset), text);
    }

    // A "@" stands in front of the character at which the fault is.
    void explains_data()
    {
        using Fault = VySmilTextFault;
        QTest::addColumn<QString>("marked");
        QTest::addColumn<VySmilTextFault::REASON>("reason");
        const auto row = [](const char *name, const QString &marked, Fault::REASON reason) {
            QTest::newRow(name) << marked << reason;
        };
        row("read", "junk <smil xmlns='x'><foo/><PAR/></smil> ", Fault::FAULT_NONE);
        row("read by Qt", "<smil><?x?></smil>", Fault::FAULT_NONE);
        row("empty", "", Fault::FAULT_EMPTY);
        row("blank", QString(" \n\t") + QChar(0xa0), Fault::FAULT_EMPTY);
        row("another root", " <?xml version='1.0'?><!-- <a/> -->\n@<html/>", Fault::FAULT_NOT_SMIL);
        row("capital root", "@<SMIL></SMIL>", Fault::FAULT_NOT_SMIL);
        row("longer root", "x @<smilx/>", Fault::FAULT_NOT_SMIL);
        row("another root, and malformed", "<html><a></b@></html>", Fault::FAULT_MALFORMED);
        row("no markup", "@hello", Fault::FAULT_MALFORMED);
        row("behind other text", "\nxx<smil></par@></smil>", Fault::FAULT_MALFORMED);
        row("ampersand", " <smil><img src='Tom &@ Ann.jpg'/></smil>", Fault::FAULT_MALFORMED);
        row("an end tag too many", "<smil></audio@></smil>", Fault::FAULT_MALFORMED);
        row("an attribute twice", "<smil><par a='1' b='' a='2'/@></smil>", Fault::FAULT_MALFORMED);
        row("cut off", " <smil><body>@\n", Fault::FAULT_MALFORMED);
        row("cut off in a tag", "<smil><body a='1'@", Fault::FAULT_MALFORMED);
        row("cut off in a comment", "<smil><!-- <body>@", Fault::FAULT_MALFORMED);
        row("NUL at the end", QString("<smil/>@") + QChar(0), Fault::FAULT_MALFORMED);
        row("two roots", "<smil/><smil/@>", Fault::FAULT_MALFORMED);
        const int depth = VySmilParser::MAX_DEPTH;
        const int most = VySmilParser::MAX_ATTRIBUTES;
        const QString deep = "<smil>" + QString("<par>").repeated(depth - 1);
        const QString many = "<par" + attributes(most + 1);
        row("greatest depth", "<smil>" + nested(depth - 1) + "</smil>", Fault::FAULT_NONE);
        row("depth", deep + "@<par/>", Fault::FAULT_DEPTH);
        row("depth behind other elements",
            "<smil>" + nested(9) + "<!-- <a> --><![CDATA[<a>]]><?x <a>?>" + deep.mid(6) +
                "@<par a='>' b='/'>",
            Fault::FAULT_DEPTH);
        row("depth, malformed before", "<smil></par@>" + deep, Fault::FAULT_MALFORMED);
        row("depth, malformed behind", deep + "@<par></a>", Fault::FAULT_DEPTH);
        row("depth, malformed tag", deep + "<par a=@1>", Fault::FAULT_MALFORMED);
        row("depth, an attribute twice", deep + "<par b='1' b='2'@>", Fault::FAULT_MALFORMED);
        row("depth, cut off", deep + "<par@ ", Fault::FAULT_MALFORMED);
        row("depth, cut off in a value", deep + "<par b='>@", Fault::FAULT_MALFORMED);
        row("many attributes", "<smil><par" + attributes(most) + "/></smil>", Fault::FAULT_NONE);
        row("attributes", "x <smil>@" + many + "></smil>", Fault::FAULT_ATTRIBUTES);
        row("attributes of an empty element", "<smil>@" + many + " /></smil>", Fault::FAULT_ATTRIBUTES);
        row("attributes of a second root", "<smil/>@" + many + "/>", Fault::FAULT_ATTRIBUTES);
        row("attributes, malformed before", "<smil>&x@;" + many + ">", Fault::FAULT_MALFORMED);
        row("attributes, malformed tag", "<smil>" + many + "@b=''>", Fault::FAULT_MALFORMED);
        row("attributes, one twice", "<smil>" + many + " a7 = \"\"@>", Fault::FAULT_MALFORMED);
        row("attributes, cut off", "<smil>" + many + "@", Fault::FAULT_MALFORMED);
        row("attributes, then depth", "<smil>@" + many + ">" + deep, Fault::FAULT_ATTRIBUTES);
        row("depth, then attributes", deep + "@<par>" + many + ">", Fault::FAULT_DEPTH);
        row("subset", " <?xml version='1.0'?>\n@<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>",
            Fault::FAULT_DOCTYPE);
        row("declaration", "<!DOCTYPE a SYSTEM '['>@<a/>", Fault::FAULT_NOT_SMIL);
        row("two declarations", "<!DOCTYPE a>@<!DOCTYPE a><a/>", Fault::FAULT_DOCTYPE);
        row("declaration in the root", "<smil>@<!DOCTYPE smil></smil>", Fault::FAULT_DOCTYPE);
        row("declaration behind the root", "<smil/>@<!DOCTYPE smil>", Fault::FAULT_DOCTYPE);
        row("malformed before a subset", "<a></b@><!DOCTYPE a []>", Fault::FAULT_MALFORMED);
        row("malformed subset", "<!DOCTYPE a [<!ENTITY@>]><a/>", Fault::FAULT_MALFORMED);
        row("malformed declaration", "<smil/><!DOCTYPE smil @x>", Fault::FAULT_MALFORMED);
        row("subset without end", "<!DOCTYPE a [ ]@ ", Fault::FAULT_MALFORMED);
        row("long subset", "@<!DOCTYPE a [" + QString("<!ENTITY % a ' '>%a;").repeated(30'000) + "]><a/>",
            Fault::FAULT_DOCTYPE);
        row("declaration of something else", "<!ELEMENT @a [", Fault::FAULT_MALFORMED);
    }
    void explains()
    {
        QFETCH(QString, marked);
        QFETCH(VySmilTextFault::REASON, reason);
        const QString text = QString(marked).remove(u'@');
        const VySmilTextFault fault = VySmilText::explain(text);
        QCOMPARE(fault.reason, reason);
        QCOMPARE(fault.position, marked.indexOf(u'@'));
        QCOMPARE(fault.message.isEmpty(), reason == VySmilTextFault::FAULT_NONE);
        VySmilElemSmil root;
        const int result = VySmilParser::parse(text, &root);
        QCOMPARE(result, reason == VySmilTextFault::FAULT_NONE ? 0
                         : reason == VySmilTextFault::FAULT_EMPTY || reason == VySmilTextFault::FAULT_NOT_SMIL
                             ? 3
                             : -1);
    }

    void tellsLineAndColumn_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("place");
        QTest::newRow("first") << ""
                               << "line 1, column 1: ";
        QTest::newRow("line feeds") << "\n\n<!-- -->"
                                    << "line 3, column 9: ";
        QTest::newRow("carriage returns") << "\r\r "
                                          << "line 3, column 2: ";
        QTest::newRow("both") << "\r\n\n\r\r\n  "
                              << "line 5, column 3: ";
        QTest::newRow("wide characters") << "<!--\U0001f600\u2028\t-->"
                                         << "line 1, column 12: ";
    }
    void tellsLineAndColumn()
    {
        QFETCH(QString, before);
        QFETCH(QString, place);
        const VySmilTextFault fault = VySmilText::explain(before + "<html/>");
        QCOMPARE(fault.position, before.size());
        QCOMPARE(fault.toString(), place + fault.message);
        QCOMPARE(fault.message, "the root element is \"html\", not \"smil\"");
    }

    // Half of a line end is no line of its own, and what strangers wrote makes none.
    void tellsInOneLine()
    {
        const VySmilTextFault fault = VySmilText::explain("<a>&\r\n;</a>");
        QCOMPARE(fault.position, 5);
        QCOMPARE(QString("%1:%2").arg(fault.line).arg(fault.column), "1:6");
        for (const QChar c : {QChar(0x0b), QChar(0x85), QChar(0x2028), QChar(0x202e), QChar(0xd800)}) {
            const QString message = VySmilText::explain("<smil " + QString(c) + "/>").message;
            QVERIFY2(!message.isEmpty() && !message.contains(c), qPrintable(message));
        }
        QVERIFY(VySmilText::explain("<" + QString(3'000, u'a') + "/>").message.size() < 300);
        QCOMPARE(VySmilText::explain(" ").toString(), VySmilText::explain(" ").message);
        QCOMPARE(VySmilText::explain("<smil/>"), VySmilTextFault());
        QVERIFY(VySmilText::explain("<a/>") != VySmilText::explain(" <a/>"));
    }

    // What senders in use write, and what is left to be shown of it.
    void showsWhatIsMended_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QString &text, const QString &shown) {
            QTest::newRow(name) << text << shown;
        };
        const auto shows = [&row](const char *text, const char *shown) {
            row(text, "<smil><body><par>" + QString::fromUtf8(text) + "</par></body></smil>",
                "| " + QString::fromUtf8(shown));
        };
        shows("<img src=\"Tom & Ann.jpg\"/>", "Tom & Ann.jpg");
        shows("<img src=\"a<b.jpg\"/>", "a<b.jpg");
        shows("<img src=a.jpg region=Image>", "a.jpg");
        shows("<img src=a.jpg region=Image><text src=b.txt>", "a.jpg b.txt");
        shows("<img src='a.jpg'/></audio><text src='b.txt'/>", "a.jpg b.txt");
        shows("<img src='a.jpg' nohref/>", "a.jpg");
        shows("<img src='a.jpg' alt='&nbsp;'/>", "a.jpg");
        shows("<img src=\u201da.jpg\u201d/>", "a.jpg");
        shows("<img src=\u2018a.jpg\u2019/>", "a.jpg");
        shows("<img src='Tom's.jpg'/>", "Tom's.jpg");
        shows("<img src=\"a.jpg/><text src=\"b.txt\"/>", "a.jpg b.txt");
        shows("<img src=\"a.jpg/><text alt=\"\"/>", "a.jpg ");
        shows("<img src=\"\"a.jpg\"/>", "a.jpg");
        shows("<img src=a.jpg\"/>", "a.jpg");
        shows("<img src=\"a.jpg\u201d/>", "a.jpg");
        shows("<img src='a.jpg' / >", "a.jpg");
        const QString slide = "<smil><body><par><img src='a.jpg'/><text src='b.txt'/>";
        row("NUL", slide + "</par></body></smil>" + QChar(0), "| a.jpg b.txt");
        row("garbage", slide + "</par></body></smil>garbage", "| a.jpg b.txt");
        row("two roots", slide + "</par></body></smil><smil><par><img src='c'/></par></smil>",
            "| a.jpg b.txt");
        row("no end of the par", slide + "</body></smil>", "| a.jpg b.txt");
        row("no end of the body", slide + "</par></smil>", "| a.jpg b.txt");
        row("no end of the root", slide + "</par></body>", "| a.jpg b.txt");
        row("no end of pars", slide + "<par><ref src='c'/><par><ref src='d'/></body></smil>",
            "| a.jpg b.txt| c| d");
        row("no end of media in no pars",
            slide + "</par><par><img src='c'><text src='d'></par></body></smil>", "| a.jpg b.txt| c d");
        row("no end of the head", "<smil><head><layout><region id='Image'>" + slide.mid(6), "| a.jpg b.txt");
        row("cut off in a tag", slide + "<audio sr", "| a.jpg b.txt ");
        row("cut off in a value", slide + "</par><par><audio src=\"c.a", "| a.jpg b.txt| c.a");
        row("capitals", "<SMIL><BODY><PAR DUR=\"5s\"><IMG SRC=\"a.jpg\"/>", "| a.jpg");
        row("declared as what it is not", "<?xml version='1.0' encoding='UTF-16'?>" + slide, "| a.jpg b.txt");
        row("a broken name",
            "<smil><head><layout><root-la\nyout width=\"1\"/></layout></head>" + slide.mid(6),
            "| a.jpg b.txt");
        row("wrapped", "<smil><body><par><img\nsrc='a\r\n\t .jpg'/></par></body></smil>", "| a.jpg");
        row("in other text", "x<a>&<!-- <smil> --> <SMILE/> <smil=> " + slide, "| a.jpg b.txt");
        row("no root", "<html><par><img src='a.jpg'/></par></html>", "");
    }
    void showsWhatIsMended()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        const QString mended = VySmilText::mend(text);
        QCOMPARE(shownIn(mended), shown);
        QCOMPARE(mended == text, shown.isEmpty());
        QCOMPARE(brokenInText(text), QString());
    }

    // The tree of a mended text, which begins with "<smil>" and is never closed.
    void mends_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tree");
        const auto row = [](const char *text, const QString &tree) {
            QTest::newRow(qPrintable(QString::fromUtf8(text).simplified()))
                << "<smil>" + QString::fromUtf8(text) << "smil" + tree;
        };
        // Tags.
        row("< a>1 <3 &<></></ b><a", "(?a)");
        row("<a<b/>", "(?a(?b))");
        row("<a//b/ /\n>x", "(?a)");
        row("<a/ b=''/\">", "(?a)");
        row("<a:b/><a:/><:a/><a:b:c/><a:1/><a.-_1/><_/>", "(?a:b ?a.-_1 ?_)");
        row("<\u00e4><b/></\u00e4><c a='1'b=''/>", "(?b ?c[a=1])");
        row("<Foo><b></fOO ><c>", "(?Foo(?b) ?c)");
        row("<a></b></a/ x='>'><c>", "(?a ?c)");
        row("<ROOT-Layout WIDTH='1' SRC='2' Foo='3'/><FOO SRC='4' Bar='5'/>",
            "(root-layout[Foo=3 SRC=2 width=1] ?FOO[Bar=5 src=4])");
        row("<head><p/></smil><body>", "(head(?p))");
        // What is left out.
        row("<!-- <a> --><b/><![CDATA[<a>]]><c/><?a <a>?><d/>", "(?b ?c ?d)");
        row("<!--><a/>--><b/>", "(?b)");
        row("<!DOCTYPE a \"<b\"><c/><!DOCTYPE [ <a> > ] ]\n><d/>", "(?c ?d)");
        row("<!DOCTYPE [ <a/><!DOCTYPE x><b/>", "(?a ?b)");
        row("<!-- <a/><![CDATA[<b/><?<c/>", "(?a ?b ?c)");
        row("<!-- x='<a/>'", "(?a)");
        // Attributes.
        row("<a b c=1 ='d' / \"e=2 f g= '3' \u00e4='4' h>", "(?a[c=1 e=2 g=3])");
        row("<a b=1 b=2 c='' c='3' d= d=4>", "(?a[b=1 c=3 d=d=4])");
        row("<par DUR='1' dur=' ' Dur='2'/>", "(par[dur=1])");
        row("<par DUR='1' dur='2' Dur='3' dur='4'/>", "(par[dur=2])");
        row("<a nohref/><b nohref=''/><c NOHREF nohref = x>", "(?a[nohref=nohref] ?b[nohref=nohref] "
                                                              "?c[nohref=nohref])");
        row("<a b == '1' c==2 d\n=\n3>", "(?a[b=1 c=2 d=3])");
        // Values.
        row("<a b='it's' c=\"say \"hi\"\"d='x'y='e'>", "(?a[b=it's c=say \"hi d=x y=e])");
        row("<a b=\"1\"c=\"2\"<d>", "(?a[b=1 c=2](?d))");
        row("<a b=\"x c=\"1\" d='2'>", "(?a[b=x c=1 d=2])");
        row("<a b=\"x c= \"1\" d='2'>", "(?a[b=x c= \"1 d=2])");
        row("<a b=\"c=\" d='e=' />", "(?a[b=c= d=e=])");
        row("<a b=\"x' y=1>", "(?a[b=x y=1])");
        row("<a b=\u201cx\u2033 y\u201f c=\u201ax' \u201b>", "(?a[b=x\u2033 y c=x'])");
        row("<a b=x/y/>", "(?a[b=x/y])");
        row("<a b=x/y / >", "(?a[b=x/y])");
        row("<a b=/><c d=>", "(?a ?c)");
        row("<a b=<c>", "(?a[b=<c])");
        row("<a b='&lt;&#65;&#x20aC;&#xD83d;&#56832;&#xD83D;&#x1F600;'>",
            "(?a[b=<A\u20ac\U0001f600&#xD83D;\U0001f600])");
        row("<a b='&amp;lt;&nbsp;&#0;&#1;&#XA;&#;&#x;&#99999999999;&#xFFFE;&#6A;&lt'>",
            "(?a[b=&lt;&nbsp;&#0;&#1;&#XA;&#;&#x;&#99999999999;&#xFFFE;&#6A;&lt])");
        row("<a b='1\x01\uffff\x7f\t\r\n\n2&#10;3&#9;'>", "(?a[b=1\x7f   2\n3])");
        row("<a src=' 1\t2\r\n \t3\r4\n\n5&#10; 6 '/>", "(?a[src=1 2345\n 6])");
        // What is open.
        row("<img><text><param><region><par>", "(img text(?param(region par)))");
        row("<img><body>", "(img body)");
        row("<head><layout><root-layout><region><layout><meta><head><par><body><head>",
            "(head(layout(root-layout region layout(meta))) head(par) body head)");
        row("<seq><par><par/><a><par></par></seq><par>", "(?seq(par par ?a(par)) par)");
        row("<par><par></par><a></par><b>", "(par(par ?a) ?b)");
        row("<smil><a></smil><b>", "(?a)");
    }
    void mends()
    {
        QFETCH(QString, text);
        QFETCH(QString, tree);
        VySmilElemSmil root;
        const QString mended = VySmilText::mend(text);
        QCOMPARE(VySmilParser::parse(mended, &root), 0);
        QCOMPARE(treeText(root), tree);
        QCOMPARE(brokenInText(text), QString());
    }

    // Each part of the corpus has its answer beside it: the reason and the place of the fault, and the mended
    // text.
    void corpus_data()
    {
        QTest::addColumn<QString>("path");
        const QDir dir(TEXTS);
        const QStringList names = dir.entryList({"*.smil"});
        QVERIFY(!names.isEmpty());
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << dir.filePath(name);
    }
    void corpus()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = VySmilText::decode(file.readAll());
        const VySmilTextFault fault = VySmilText::explain(text);
        const QString mended = VySmilText::mend(text);
        QString answer = QMetaEnum::fromType<VySmilTextFault::REASON>().valueToKey(fault.reason);
        answer += QString(" %1:%2\n").arg(fault.line).arg(fault.column);
        answer += mended == text ? "as it is\n" : shownIn(mended) + u'\n' + mended;
        const QString answerPath = path.chopped(4) + "answer";
        QVERIFY(!renewsAnswers() || storeText(answerPath, answer));
        QCOMPARE(answer, storedText(answerPath));
        QCOMPARE(brokenInText(text), QString());
    }

    // Documents that were cut, or had characters left out, doubled and changed.
    void everyDamageIsMended()
    {
        const QString text =
            "<smil>\n<head><layout><root-layout width=\"160\" height=\"120\"/><region id=\"Image\" "
            "top=\"0\"/></layout></head>\n<body><par dur=\"5s\"><img src=\"a&amp;b.jpg\" region=\"Image\"/>"
            "<!-- x --><text src='b.txt' alt='&#9;\u201cc\u201d'></text></par><PAR DUR='1s'>"
            "<AUDIO SRC=\"c\nd\"/></PAR><seq><a:b c='1' nohref=''/></seq></body></smil>";
        QCOMPARE(brokenInText(text), QString());
        static const char16_t characters[] = u"\"'<>/=&;! -[]?aA1\n\r\u201c\u2018\xd800";
        QRandomGenerator random(16);
        for (int round = 0; round < 600; ++round) {
            QString damaged = text;
            for (int i = random.bounded(4); i >= 0; --i) {
                const qsizetype place = 6 + random.bounded(int(damaged.size() - 6));
                const QChar c(characters[random.bounded(int(std::size(characters)) - 1)]);
                switch (random.bounded(8)) {
                case 0:
                    damaged.truncate(place + 1);
                    break;
                case 1:
                    damaged.insert(place, damaged.mid(random.bounded(int(damaged.size())), 20));
                    break;
                case 2:
                case 3:
                    damaged.remove(place, 1 + random.bounded(2));
                    break;
                case 4:
                    damaged.insert(place, damaged.mid(place, 1));
                    break;
                case 5:
                    damaged.insert(place, c);
                    break;
                default:
                    damaged.replace(place, 1, c);
                }
                damaged += u' '; // there is a place left
            }
            const QString broken = brokenInText(damaged);
            QVERIFY2(broken.isEmpty(), qPrintable(broken + u'\n' + damaged));
            QVERIFY2(VySmilText::explain(VySmilText::mend(damaged)) == VySmilTextFault(),
                     qPrintable(damaged));
        }
    }
};

QTEST_GUILESS_MAIN(TestVySmilText)
#include "tst_vysmiltext.moc"
