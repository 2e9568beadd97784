// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "../support/treetext.h"

#include <VySmil/parser/vysmilparser.h>

#include <QTest>

#include <new>

namespace {
int allocationsLeft = -1; // counts down to the one that fails; below 0 none does
}

// Elements, and nothing else here, are allocated by this operator.
void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    if (allocationsLeft >= 0 && allocationsLeft-- == 0)
        return nullptr;
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

class TestHeapExhausted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // At the first child, its child, the second child, and the unknown one in that.
    void readingGivesUp()
    {
        for (int allocations = 0; allocations < 4; ++allocations) {
            for (const auto &[start, strict] :
                 {std::pair("<smil>", false), std::pair("<smil>", true), std::pair("<smil><?x?>", false),
                  std::pair("<smil><?x?>", true)}) {
                VySmilElemSmil root;
                root.setAttribute("old", "1");
                VySmil::STATUS_CODE status = VySmil::STATUS_INVALID_ATTR;
                allocationsLeft = allocations;
                const int result =
                    VySmilParser::parse(start + QString("<head><layout/></head><body><foo/></body></smil>"),
                                        &root, strict, &status);
                allocationsLeft = -1;
                QCOMPARE(result, int(VySmil::RESULT_NO_OBJECT));
                QCOMPARE(status, VySmil::STATUS_OK);
                QCOMPARE(treeText(root), allocations < 2 ? "smil[old=1]" : "smil[old=1](head(layout))");
            }
        }
    }

    // A copy leaves out what there is no room for.
    void copyingGoesOn()
    {
        VySmilElemSmil root;
        VySmilParser::parse("<smil><head><layout/></head><body><par/></body></smil>", &root, true);
        allocationsLeft = 1;
        const VySmilElemSmil copy(root);
        allocationsLeft = -1;
        QCOMPARE(treeText(copy), QString("smil(head(layout))"));
        allocationsLeft = 0;
        const VySmilElemSmil withoutHead(root);
        allocationsLeft = -1;
        QCOMPARE(treeText(withoutHead), QString("smil(body(par))"));
    }
};

QTEST_GUILESS_MAIN(TestHeapExhausted)
#include "tst_heapexhausted.moc"
