// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// What is made of texts: of their bytes, of well-formed ones, of those with faults, and of mended ones.

#include "../support/answeredlines.h"
#include "../support/readtext.h"
#include "../support/tablerows.h"
#include "../support/textproperties.h"

#include <QDir>
#include <QDomDocument>
#include <QMetaEnum>
#include <QRandomGenerator>
#include <QStringEncoder>

namespace {

/// What parse() makes of a root that was in use before.
QString readAgain(const QString &text, bool strict)
{
    VySmilElemSmil root;
    root.setAttribute("old", "1");
    root.getSubElements()->append(VySmilElemBase::newElem("meta"));
    return readText(text, root, strict);
}

QString writtenText(const QString &text, bool strict)
{
    VySmilElemSmil root;
    VySmilParser::parse(text, &root);
    QString out;
    VySmil::STATUS_CODE status = VySmil::STATUS_OK;
    const int result = VySmilParser::assemble(&root, out, strict, &status);
    return QString("%1 %2 %3").arg(result).arg(status).arg(out);
}

/// What a DOM of the text gives, where the bounds of the parser do not matter.
QString readAsDom(const QString &text)
{
    QDomDocument dom;
    VySmilElemSmil root;
    int result = -1;
    if (dom.setContent(text.mid(text.indexOf("<smil")).trimmed()))
        result = root.fromDomElem(dom.documentElement(), false, nullptr, VySmil::SMIL_VER_DEFAULT);
    return QString("%1 %2").arg(result).arg(treeText(root));
}

/// What does not hold of a text.
QString brokenIn(const QString &text)
{
    VySmilElemSmil root;
    const int result = VySmilParser::parse(text, &root);
    const QString read = QString("%1 %2").arg(result).arg(treeText(root));
    const auto reason = VySmilText::explain(text).reason;
    if (reason != VySmilTextFault::FAULT_EMPTY && reason < VySmilTextFault::FAULT_DEPTH &&
        readAsDom(text) != read)
        return "not as a DOM: " + readAsDom(text);
    // Behind a processing instruction Qt reads, to the same effect.
    for (const bool strict : {false, true}) {
        if (readAgain(leftToQt(text), strict) != readAgain(text, strict))
            return "not as Qt: " + readAgain(leftToQt(text), strict);
    }
    return brokenInText(text);
}

/// All that is made of a text: its fault, what is read and written, strictly too where that is something
/// else, and what it is mended to.
QStringList answerTo(const QString &text)
{
    const VySmilTextFault fault = VySmilText::explain(text);
    const QString reason = QMetaEnum::fromType<VySmilTextFault::REASON>().valueToKey(fault.reason);
    // What is malformed is told in Qt's words, which change.
    const bool isQts = fault.reason == VySmilTextFault::FAULT_MALFORMED;
    const QString words = isQts ? fault.toString().section(u':', 0, 0) : fault.toString();
    QStringList answer{QString("%1 %2 %3").arg(reason).arg(fault.position).arg(words).trimmed()};
    const auto add = [&](const char *name, QString (*result)(const QString &, bool)) {
        answer << name + result(text, false);
        if (result(text, true) != result(text, false))
            answer << "strictly " + result(text, true);
    };
    add("reads ", readAgain);
    if (fault.reason == VySmilTextFault::FAULT_NONE)
        add("writes ", writtenText);
    if (const QString mended = VySmilText::mend(text); mended != text)
        answer << "mended " + mended;
    if (const QString broken = brokenIn(text); !broken.isEmpty())
        answer << "broken: " + broken;
    return answer;
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
        for (const QJsonArray &row : tableRows(DECODED))
            QTest::newRow(qPrintable(row[0].toString()))
                << row[1].toString().toLatin1() << row[2].toString().toLatin1() << row[3].toString();
    }
    void decodes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, charset);
        QFETCH(QString, text);
        QCOMPARE(VySmilText::decode(bytes, charset), text);
    }

    void decodesWideUnits_data()
    {
        QTest::addColumn<QStringConverter::Encoding>("encoding");
        QTest::newRow("utf-16le") << QStringConverter::Utf16LE;
        QTest::newRow("utf-16be") << QStringConverter::Utf16BE;
        QTest::newRow("utf-32le") << QStringConverter::Utf32LE;
        QTest::newRow("utf-32be") << QStringConverter::Utf32BE;
    }
    void decodesWideUnits()
    {
        QFETCH(QStringConverter::Encoding, encoding);
        const auto encoded = [encoding](const QString &text) -> QByteArray {
            return QStringEncoder(encoding)(text);
        };
        const QByteArray label = QTest::currentDataTag();
        const QByteArray mark = encoded(QString(QChar(0xfeff)));
        const QByteArray nul = encoded(QString(QChar(0)));
        const QString text = "<smil>\u00e4\u20ac\U0001f600</smil>";
        const QByteArray bytes = encoded(text);
        QCOMPARE(VySmilText::decode(mark + bytes, "windows-1252"), text);
        QCOMPARE(VySmilText::decode(mark + encoded("\u4e3c"), "utf-8"), "\u4e3c");
        QCOMPARE(VySmilText::decode(bytes, "utf-8"), text);
        QCOMPARE(VySmilText::decode(encoded(" \t\r\n" + text)), " \t\r\n" + text);
        QCOMPARE(VySmilText::decode(encoded("x" + text), label), "x" + text);
        QCOMPARE(VySmilText::decode(bytes + nul + nul), text);
        QCOMPARE(VySmilText::decode(bytes + nul + nul.chopped(1)), text);
        QCOMPARE(VySmilText::decode(encoded("<\u4e3c\u4e3c").chopped(1)), "<\u4e3c");
        QCOMPARE(VySmilText::decode(encoded("<")), "<");
        QCOMPARE(VySmilText::decode(text.toUtf8(), label), text);
    }

    // Half of a line end is no line of its own, and what strangers wrote makes none.
    void tellsInOneLine()
    {
        const VySmilTextFault fault = VySmilText::explain("<a>&\r\n;</a>");
        QCOMPARE(fault.position, 5);
        QCOMPARE(QString("%1:%2").arg(fault.line).arg(fault.column), "1:6");
        for (const char16_t c : u"\u000b\u0085\u200b\u2028\u202e\ue000\ufffe\xd800") {
            const QString message = VySmilText::explain("<smil " + QString(c) + "/>").message;
            QVERIFY2(!message.isEmpty() && !message.contains(c), qPrintable(message));
        }
        QVERIFY(VySmilText::explain("<" + QString(3'000, u'a') + "/>").message.size() < 300);
        // Where such a name ends for Qt is a matter of its version.
        const QString longName = "<smil><" + QString(5'000, u'a') + "/></smil>";
        QCOMPARE(VySmilText::explain(longName).reason, VySmilTextFault::FAULT_MALFORMED);
        QCOMPARE(brokenInText(longName), QString());
        QCOMPARE(VySmilText::explain(" ").toString(), VySmilText::explain(" ").message);
        QCOMPARE(VySmilText::explain("<smil/>"), VySmilTextFault());
        QVERIFY(VySmilText::explain("<a/>") != VySmilText::explain(" <a/>"));
    }

    // Texts of a line.
    void texts_data()
    {
        QTest::addColumn<QString>("path");
        const QDir dir(CORPUS);
        for (const QString &name : dir.entryList({"*.texts"}))
            QTest::newRow(qPrintable(name)) << dir.filePath(name);
    }
    void texts()
    {
        QFETCH(QString, path);
        const auto answersTo = [](const QString &line) {
            return line.startsWith("# ") ? QStringList() : answerTo(unescaped(line));
        };
        QCOMPARE(wrongAnswer(path, answersTo), QString());
    }

    // Whole documents, each with its answer beside it.
    void documents_data()
    {
        QTest::addColumn<QString>("path");
        const QDir dir(CORPUS);
        for (const QString &name : dir.entryList({"*.smil"}))
            QTest::newRow(qPrintable(name)) << dir.filePath(name);
    }
    void documents()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString answer = answerTo(VySmilText::decode(file.readAll())).join(u'\n') + u'\n';
        QVERIFY2(!answer.contains("\nbroken: "), qPrintable(answer));
        const QString answerPath = path.chopped(4) + "answer";
        QVERIFY(!renewsAnswers() || storeText(answerPath, answer));
        QCOMPARE(answer, storedText(answerPath));
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
