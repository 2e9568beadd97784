// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/drawinggrowth.h"
#include "../support/heapwatch.h"

#include <QTest>

namespace {

constexpr qsizetype textSize = 3'000;

struct Heap
{
    double bytes;
    double calls;
};

Heap heapOf(const GrowthOperation &operation, const Grown &grown)
{
    const HeapWatch heap;
    operation.second(grown);
    return {heap.taken(), heap.calls()};
}

/// Says by how much \a large is out of proportion, and nothing where it is not.
QString excess(const char *operation, const char *what, double small, double large)
{
    // What is done once for all sizes is no growth.
    constexpr double once = 200;
    return large <= 5 * small + once
               ? QString()
               : QString("%1: %2 %3, then %4\n").arg(operation, what).arg(small).arg(large);
}

} // namespace

class TestGrowth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Four times the text, at most five times the heap.
    void takesHeapInProportion_data()
    {
        QTest::addColumn<GrowthShape>("shape");
        for (const GrowthShape &shape : growthShapes())
            QTest::newRow(shape.name) << shape;
    }
    void takesHeapInProportion()
    {
        QFETCH(GrowthShape, shape);
        const qsizetype pieces = std::max<qsizetype>(4, textSize / shape.piece.size());
        const Grown small(shape, pieces);
        const Grown large(shape, 4 * pieces);
        QVERIFY(large.text.size() > 3 * small.text.size());
        QString tooMuch;
        for (const GrowthOperation &operation : growthOperationsAndDrawing()) {
            const Heap ofSmall = heapOf(operation, small);
            const Heap ofLarge = heapOf(operation, large);
            tooMuch += excess(operation.first, "bytes", ofSmall.bytes, ofLarge.bytes);
            tooMuch += excess(operation.first, "calls", ofSmall.calls, ofLarge.calls);
        }
        QCOMPARE(tooMuch, QString());
    }
};

QTEST_GUILESS_MAIN(TestGrowth)
#include "tst_growth.moc"
