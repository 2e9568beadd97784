// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/VySmil>

#include <QTest>

#include <cstdlib>

// glibc's own allocator under the name by which it can still be reached when malloc is replaced.
extern "C" void *__libc_malloc(std::size_t size); // NOLINT(bugprone-reserved-identifier)

namespace {
int allocations = 0;
}

// Qt allocates by malloc, and so does operator new. Exported, for them to find it.
extern "C" Q_DECL_EXPORT void *malloc(std::size_t size)
{
    ++allocations;
    return __libc_malloc(size);
}

namespace {

template <typename Value>
int allocationsOfReading(const QString &text)
{
    const int before = allocations;
    Value value;
    value.fromString(text);
    return allocations - before;
}

} // namespace

class TestAllocations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readingNumbersAllocatesNothing()
    {
        const QString kept = QString::number(allocations); // malloc is really counted
        QVERIFY(allocations > 0 && !kept.isEmpty());
        for (const char *text : {"", " 12 ", "100px", "33.3%", "-1.5e3x", "12.5S ", "INDEFINITE"}) {
            const QString string = QString::fromLatin1(text);
            QCOMPARE(allocationsOfReading<VySmil::VyLength>(string), 0);
            QCOMPARE(allocationsOfReading<VySmil::VyCount>(string), 0);
        }
        for (const char *text : {"5s", "5000ms", "1.5MIN", "2h", "00:01.5", "1:02:03", "2:x", "abc"}) {
            const QString string = QString::fromLatin1(text);
            QCOMPARE(allocationsOfReading<VySmil::VyTimeClock>(string), 0);
            if (string != u"abc")
                QCOMPARE(allocationsOfReading<VySmil::VyTime>(string), 0);
        }
    }
};

QTEST_GUILESS_MAIN(TestAllocations)
#include "tst_allocations.moc"
