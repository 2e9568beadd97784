// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/heapwatch.h"

#include <VySmil/VySmil>

#include <QTest>

namespace {

template <typename... Values>
double allocationsOfReading(const QString &text)
{
    return heapUse([&text] { return (Values().fromString(text), ...); }).calls;
}

} // namespace

class TestAllocations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readingNumbersAllocatesNothing()
    {
        const HeapUse ofText = heapUse([] { return QString(100, u'x'); });
        QVERIFY(ofText.calls > 0 && ofText.taken > 100); // the heap is really watched
        for (const QString text : {"", " 12 ", "100px", "33.3%", "-1.5e3x", "12.5S ", "INDEFINITE"})
            QCOMPARE((allocationsOfReading<VySmil::VyLength, VySmil::VyCount>(text)), 0.0);
        for (const QString text : {"5s", "5000ms", "1.5MIN", "2h", "00:01.5", "1:02:03", "2:x"})
            QCOMPARE((allocationsOfReading<VySmil::VyTimeClock, VySmil::VyTime>(text)), 0.0);
    }

    void namesOfTheVocabularyAllocateNothing()
    {
        const QString id = QStringLiteral("r");
        const QString fit = QString::fromLatin1("fit");
        VySmilElemRegion region;
        region.setFit(id); // makes room for more attributes than this
        const HeapUse used = heapUse([&] {
            region.getCommonAttrsProxy()->setId(id);
            return region.getCommonAttrsProxy()->getId() == region.getAttribute(fit) &&
                   region.isValidAttr(fit, VySmil::SMIL_VER_DEFAULT) &&
                   region.isValidElement(region.getElemType(), VySmil::SMIL_VER_DEFAULT);
        });
        QCOMPARE(used.calls, 0.0);
    }
};

QTEST_GUILESS_MAIN(TestAllocations)
#include "tst_allocations.moc"
