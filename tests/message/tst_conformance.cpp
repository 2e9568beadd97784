// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/messagecase.h"

#include <QFile>
#include <QMetaEnum>
#include <QRegularExpression>
#include <QTest>

namespace {

// Reading never makes such an element.
const QString ofClients = "EE11 body/par/ PAR\uFFFD: should be called \"par\"";

QString contentOf(const QString &path)
{
    QFile file(SOURCE_DIR + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class TestConformance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever can be found has a line in the guide, which says what the table of rules says, and is found in
    // a message of the corpus.
    void isToldInTheGuide()
    {
        static const QRegularExpression row("Rule::(RULE_\\w+), (\\w+), (\\w+), u\"(.*)\"\\}");
        static const QRegularExpression line(
            "\\| VySmilFinding::(RULE_\\w+) \\| `([^`]*)` \\| (\\w+) \\| (\\w+) "
            "\\| [^|]{5,} \\| [^|]{5,} \\|");
        QStringList inTable;
        QRegularExpressionMatchIterator at = row.globalMatch(contentOf("src/VySmil/message/check_rules.cpp"));
        while (at.hasNext()) {
            const QRegularExpressionMatch match = at.next();
            inTable << QStringList{match.captured(1), match.captured(4), match.captured(2), match.captured(3)}
                           .join(u'|')
                           .replace("\\\"", "\"")
                           .replace("%1", "...");
        }
        QStringList inGuide;
        at = line.globalMatch(contentOf("docs/checking.md"));
        while (at.hasNext())
            inGuide << at.next().capturedTexts().mid(1).join(u'|');
        QVERIFY(!inTable.isEmpty());
        QCOMPARE(inGuide.join(u'\n'), inTable.join(u'\n'));

        QStringList found{ofClients};
        for (const MessageCase &example :
             MessageCase::casesOf(contentOf("tests/message/corpus/check.message")))
            found << example.section("finds").split(u'\n');
        for (const QString &told : std::as_const(inTable)) {
            const QStringList fields = told.split(u'|');
            const int rule = QMetaEnum::fromType<VySmilFinding::RULE>().keyToValue(qPrintable(fields[0]));
            const auto letter = [](const QString &severity) { return severity[0].toUpper(); };
            QString grave = letter(fields[2]);
            grave += fields[3] == "none" ? QChar('-') : letter(fields[3]);
            QString words = QRegularExpression::escape(fields[1]).replace("\\.\\.\\.", ".+");
            const QRegularExpression pattern("^" + grave + QString::number(rule) + " [^:]+: ([a-z]+ )?" +
                                             words + "$");
            QVERIFY2(found.indexOf(pattern) >= 0, qPrintable(told));
        }
    }

    // What reading never makes: a client alone does.
    void looksAtTreesOfClients()
    {
        VySmilElemSmil root;
        VySmilParser::parse("<smil><head><layout><region/><region/></layout></head><body><par dur='9000ms'>"
                            "<img src='a'/></par></body></smil>",
                            &root);
        VySmilElemBase *regions = root.getSubElement(0, "head")->getSubElement(0, "layout");
        VySmilElemBase *par = root.getSubElement(0, "body")->getSubElement(0, "par");
        VySmilElemBase *picture = par->getSubElement(0, "img");
        regions->getSubElement(0, "region")->setAttribute("id", " ");
        regions->getSubElement(1, "region")->setAttribute("id", "Image");
        for (VySmilElemBase *elem : *regions->getSubElements())
            elem->setAttribute("fit", "\t");
        picture->setAttribute("region", " ");
        picture->setAttribute("class", " ");
        picture->setAttribute(" ", "a");
        picture->setAttribute("a\nb", "1");
        picture->setAttribute(" end", "1");
        auto *unknown = new VySmilElemUnknown;
        unknown->setElemType(" SEQ\n");
        par->getSubElements()->append(unknown);
        unknown = new VySmilElemUnknown;
        unknown->setElemType(" PAR\n");
        par->getSubElements()->append(unknown);
        QCOMPARE(findingsText(root), "EW2 head/layout/region[1]: id is missing\n"
                                     "W-0 body/par/img:  end is not in the vocabulary of img\n"
                                     "W-0 body/par/img: a\uFFFDb is not in the vocabulary of img\n"
                                     "EW10 body/par/img: region is missing\n"
                                     "EW0 body/par/ SEQ\uFFFD: is not in the vocabulary\n"
                                     "EW0 body/par/ PAR\uFFFD: is not in the vocabulary\n" +
                                         ofClients);
        QCOMPARE(VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT).last().elem, unknown);
    }

    void tellsNamesInOneLine_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("told");
        const QString face = QString::fromUcs4(U"\U0001F600", 1);
        const QString most(31, 'x');
        QTest::newRow("32") << most + "y" << most + "y";
        QTest::newRow("33") << most + "yz" << most + "y...";
        QTest::newRow("pair at the end") << most + face << most + face;
        QTest::newRow("pair before the cut") << most + face + "z" << most + face + "...";
        QTest::newRow("pairs") << face.repeated(33) << face.repeated(32) + "...";
        QTest::newRow("halves of pairs")
            << face.right(1) + face.left(1) + "x" + face.left(1) << QString("\uFFFD\uFFFDx\uFFFD");
        QTest::newRow("controls") << QString("a\t\r\n\u007F\u0085\u009Bz")
                                  << QString("a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDz");
        QTest::newRow("lines") << QString("a\u2028\u2029z") << QString("a\uFFFD\uFFFDz");
        QTest::newRow("directions") << QString("\u061C\u200E\u200F\u202A\u202E\u2066\u2069z")
                                    << QString(7, QChar(0xFFFD)) + "z";
    }
    void tellsNamesInOneLine()
    {
        QFETCH(QString, name);
        QFETCH(QString, told);
        VySmilElemSmil root;
        VySmilParser::parse("<smil><body><par dur='1ms'><ref src='a'/></par></body></smil>", &root);
        root.setAttribute(name, "1");
        VySmilElemBase *body = root.getSubElement(0, "body");
        body->getSubElements()->append(VySmilElemBase::newElem(name));
        body->getSubElement(0, "par")->setAttribute("dur", name);
        const auto findings = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT);
        QCOMPARE(findings.size(), 4);
        QCOMPARE(findings[0].toString(), "smil: " + told + " is not in the vocabulary of smil");
        QCOMPARE(findings[0].attribute, name);
        QCOMPARE(findings[1].toString(), "body/par: dur \"" + told + "\" is no time above 0");
        QCOMPARE(findings[3].toString(), "body/" + told + ": is not in the vocabulary");
    }

    void shortensPaths()
    {
        VySmilElemSmil root;
        VySmilElemBase *inner = &root;
        const auto pathBelow = [&](const QString &name) {
            inner->getSubElements()->append(VySmilElemBase::newElem(name));
            inner = inner->getSubElements()->at(0);
            return VySmilConformance::check(root, VySmilConformance::LEVEL_RELAXED).last().path;
        };
        QString path;
        for (int i = 1; i <= 16; ++i)
            QCOMPARE(pathBelow(QString("e%1").arg(i)), path += QString(i > 1 ? "/e%1" : "e%1").arg(i));
        QCOMPARE(pathBelow("e17"), ".../" + path.mid(3) + "/e17");
    }

    void compares()
    {
        VySmilElemSmil root;
        const VySmilFinding finding = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT).first();
        VySmilFinding other = finding;
        other.elem = nullptr;
        QCOMPARE(other, finding);
        const auto differsWith = [&finding](auto change) {
            VySmilFinding changed = finding;
            change(changed);
            return changed != finding;
        };
        QVERIFY(differsWith([](VySmilFinding &changed) { changed.rule = VySmilFinding::RULE_VALUE; }));
        QVERIFY(
            differsWith([](VySmilFinding &changed) { changed.severity = VySmilFinding::SEVERITY_WARNING; }));
        QVERIFY(differsWith([](VySmilFinding &changed) { changed.attribute = "dur"; }));
        QVERIFY(differsWith([](VySmilFinding &changed) { changed.path = "body"; }));
        QVERIFY(differsWith([](VySmilFinding &changed) { changed.message = "is missing"; }));
    }
};

QTEST_GUILESS_MAIN(TestConformance)
#include "tst_conformance.moc"
