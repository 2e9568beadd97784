// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../../tools/storyboard/drawing.h"
#include "../support/growth.h"
#include "../support/heapwatch.h"

#include <QTest>

class TestGrowth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Four times the text, at most five times the heap.
    void takesHeapInProportion_data()
    {
        QTest::addColumn<GrowthShape>("shape");
        for (const GrowthShape &shape : growthShapes())
            QTest::newRow(qPrintable(shape.name())) << shape;
    }
    void takesHeapInProportion()
    {
        QFETCH(GrowthShape, shape);
        const qsizetype pieces = std::max<qsizetype>(4, 3'000 / shape.piece.size());
        const Grown small{MessageCase(shape.messageText(pieces))};
        const Grown large{MessageCase(shape.messageText(4 * pieces))};
        QVERIFY(large.text.size() > 3 * small.text.size());
        QCOMPARE(large.parts.size(), shape.part.isEmpty() ? 0 : 4 * pieces);
        std::vector<GrowthOperation> operations = growthOperations();
        operations.emplace_back("drawing", [](const Grown &grown) { (void)drawingOf(grown.show); });
        for (const auto &[name, run] : operations) {
            const auto use = [&run = run](const Grown &of) { return heapUse([&] { return run(of), 0; }); };
            const HeapUse ofSmall = use(small); // first: it takes what is made once, too
            const HeapUse ofLarge = use(large);
            QVERIFY2(ofLarge.taken <= 5 * ofSmall.taken + 200, name);
            QVERIFY2(ofLarge.calls <= 5 * ofSmall.calls + 200, name);
        }
    }
};

QTEST_GUILESS_MAIN(TestGrowth)
#include "tst_growth.moc"
