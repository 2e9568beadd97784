// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/treetext.h"

#include <VySmil/VySmil>

#include <QTest>

#include <array>
#include <thread>

// Distinct trees are independent: each thread reads, edits, copies and writes its own.
class TestThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void distinctTreesAreIndependent()
    {
        std::array<QString, 4> written;
        std::array<std::thread, 4> threads;
        for (std::size_t i = 0; i < threads.size(); ++i)
            threads[i] = std::thread([&text = written[i]] { text = work(); });
        for (std::thread &thread : threads)
            thread.join();
        QVERIFY(written[0].contains("width=\"50.000000%\"") && written[0].contains("begin=\"a.end+1.5s\""));
        for (const QString &text : written)
            QVERIFY(text == written[0]);
    }

private:
    static QString work()
    {
        const QString document = "<smil x='1'><head><layout><region id='r' width='9'/></layout></head>"
                                 "<body><par dur='5s'><img src='a'/><foo/></par></body></smil>";
        QString text;
        for (int i = 0; i < 200; ++i) {
            VySmilElemSmil root;
            VySmilParser::parse(document, &root);
            auto *region = static_cast<VySmilElemRegion *>(
                root.getHead()->getSubElements()->at(0)->getSubElement(0, ""));
            VySmil::VyLength width;
            width.fromString("50%");
            region->setWidth(width);
            VySmil::VyTime begin;
            begin.fromString("a.end+1.5s");
            auto *par = static_cast<VySmilElemPar *>(root.getBody()->getSubElement(0, "par"));
            par->getTimingAttrsProxy()->setBegin(begin);
            par->getSubElements()->append(VySmilElemBase::newElem("text"));
            const VySmilElemSmil copy(root);
            text.clear();
            VySmilParser::assemble(&copy, text);
            const auto level = VySmilConformance::LEVEL_STRICT;
            for (const VySmilFinding &finding : VySmilConformance::check(copy, level))
                text += finding.toString();
            VySmilSlideShow show;
            show.fromTree(copy);
            show.toTree(&root);
            VySmilParser::assemble(&root, text);
            text += VySmilText::mend("<par alt=\"Tom & Ann\">");
        }
        return text;
    }
};

QTEST_GUILESS_MAIN(TestThreads)
#include "tst_threads.moc"
