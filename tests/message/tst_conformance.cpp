// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/messagecase.h"
#include "../support/storedanswer.h"

#include <QRegularExpression>
#include <QTest>

class TestConformance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each row of the table of rules has a line in the guide, and what that says is found in a message of the
    // corpus.
    void isToldInTheGuide()
    {
        static const QRegularExpression line(
            "\\| VySmilFinding::(RULE_\\w+) \\| `([^`]*)` \\| (\\w)\\w+ \\| (\\w)(\\w+) "
            "\\| [^|]{5,} \\| [^|]{5,} \\|");
        static const QRegularExpression finding("^[EW][EW-]\\d+ ");
        QStringList found =
            storedText(SOURCE_DIR "tests/message/corpus/check.message").split(u'\n').filter(finding);
        found << "EE11 body/par/ PAR\uFFFD: should be called \"par\""; // see below
        QStringList patterns;
        for (const auto &row : line.globalMatch(storedText(SOURCE_DIR "docs/checking.md"))) {
            const QStringList told = row.capturedTexts();
            const int rule = QMetaEnum::fromType<VySmilFinding::RULE>().keyToValue(qPrintable(told[1]));
            const QString grave = told[3].toUpper() + (told[5] == "one" ? "-" : told[4].toUpper());
            patterns << QString("^%1%2 [^:]+: ([a-z-]+ )?").arg(grave).arg(rule) +
                            QRegularExpression::escape(told[2]).replace("\\.\\.\\.", ".+") + u'$';
            QVERIFY2(!found.filter(QRegularExpression(patterns.last())).isEmpty(),
                     qPrintable(patterns.last()));
        }
        const QString table = storedText(SOURCE_DIR "src/VySmil/message/check_rules.cpp");
        QCOMPARE(patterns.removeDuplicates(), 0);
        QCOMPARE(patterns.size(), table.count(", Rule::RULE_"));
    }

    // What reading never makes: a client alone does.
    void looksAtTreesOfClients()
    {
        VySmilElemSmil root;
        VySmilParser::parse("<smil><head><layout><region/><region/></layout></head><body><par dur='9000ms'>"
                            "<img src='a'/><x/><x/></par></body></smil>",
                            &root);
        const VySmilElemList &regions =
            *root.getSubElement(0, "head")->getSubElement(0, "layout")->getSubElements();
        VySmilElemBase *par = root.getSubElement(0, "body")->getSubElement(0, "par");
        VySmilElemBase *picture = par->getSubElement(0, "img");
        regions.at(0)->setAttribute("id", " ");
        regions.at(1)->setAttribute("id", "Image");
        regions.at(1)->setAttribute("fit", "\t");
        const QString halves = QString::fromUcs4(U"\U0001F600x\U0001F600", 3).mid(1, 3);
        for (const QString &name : {QString(" "), QString(" end"), halves})
            picture->setAttribute(name, "1");
        picture->setAttribute("region", " ");
        picture->setAttribute("class", " ");
        static_cast<VySmilElemUnknown *>(par->getSubElement(0, "x"))->setElemType(" SEQ\n");
        static_cast<VySmilElemUnknown *>(par->getSubElement(0, "x"))->setElemType(" PAR\n");
        root.getSubElements()->append(new VySmilElemUnknown);
        root.getSubElements()->at(2)->getSubElements()->append(new VySmilElemUnknown);
        QCOMPARE(findingsText(root),
                 QString("EW2 head/layout/region[1]: id is missing\n"
                         "W-0 body/par/img:  end is not in the vocabulary of img\n"
                         "EW10 body/par/img: region is missing\n"
                         "W-0 body/par/img: \uFFFDx\uFFFD is not in the vocabulary of img\n"
                         "EW0 body/par/ SEQ\uFFFD: is not in the vocabulary\n"
                         "EW0 body/par/ PAR\uFFFD: is not in the vocabulary\n"
                         "EE11 body/par/ PAR\uFFFD: should be called \"par\"\n"
                         "EW0 : is not in the vocabulary\n"
                         "EW0 /: is not in the vocabulary"));
        const auto findings = VySmilConformance::check(root, VySmilConformance::LEVEL_STRICT);
        QCOMPARE(findings[3].attribute, halves);
        for (const char *blank : {"src", "alt"})
            picture->setAttribute(blank, "\n ");
        VySmilSlideShow show;
        show.fromTree(root, {MessageCase::partOf("|||image/gif")});
        QCOMPARE(slidesText(show), QString("320x480 size? screen?\nslide 9000\n"
                                           " image \"\" 0,0 320x480 0- @Image region?\nunused part 0"));
        QCOMPARE(findings[6].elem, par->getSubElements()->at(2));
    }
};

QTEST_GUILESS_MAIN(TestConformance)
#include "tst_conformance.moc"
