// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/heapwatch.h"

#include <VySmil/VySmil>

#include <QTest>

namespace {

template <typename Value>
double allocationsOfReading(const QString &text)
{
    const HeapWatch heap;
    Value value;
    value.fromString(text);
    return heap.calls();
}

} // namespace

class TestAllocations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readingNumbersAllocatesNothing()
    {
        {
            const HeapWatch heap; // the heap is really watched
            const QString kept(100, u'x');
            QVERIFY(heap.calls() > 0 && heap.taken() > double(kept.size()));
        }
        for (const char *text : {"", " 12 ", "100px", "33.3%", "-1.5e3x", "12.5S ", "INDEFINITE"}) {
            const QString string = QString::fromLatin1(text);
            QCOMPARE(allocationsOfReading<VySmil::VyLength>(string), 0.0);
            QCOMPARE(allocationsOfReading<VySmil::VyCount>(string), 0.0);
        }
        for (const char *text : {"5s", "5000ms", "1.5MIN", "2h", "00:01.5", "1:02:03", "2:x", "abc"}) {
            const QString string = QString::fromLatin1(text);
            QCOMPARE(allocationsOfReading<VySmil::VyTimeClock>(string), 0.0);
            if (string != u"abc")
                QCOMPARE(allocationsOfReading<VySmil::VyTime>(string), 0.0);
        }
    }

    void namesOfTheVocabularyAllocateNothing()
    {
        const QString id = QStringLiteral("r");
        const QString fit = QString::fromLatin1("fit");
        VySmilElemRegion region;
        region.setFit(id); // makes room for more attributes than this
        const HeapWatch heap;
        region.getCommonAttrsProxy()->setId(id);
        QVERIFY(region.getCommonAttrsProxy()->getId() == region.getAttribute(fit));
        QVERIFY(region.isValidAttr(fit, VySmil::SMIL_VER_DEFAULT));
        QVERIFY(region.isValidElement(region.getElemType(), VySmil::SMIL_VER_DEFAULT));
        QCOMPARE(heap.calls(), 0.0);
    }
};

QTEST_GUILESS_MAIN(TestAllocations)
#include "tst_allocations.moc"
