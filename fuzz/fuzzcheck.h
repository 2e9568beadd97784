// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_FUZZ_FUZZCHECK_H
#define VYSMIL_FUZZ_FUZZCHECK_H

#include <QString>

#include <cstdio>
#include <cstdlib>

#if defined(VYSMIL_FUZZER)
#include <sanitizer/allocator_interface.h>
#endif

/// Ends the program, as a sanitizer would, if \a a and \a b differ.
inline void checkSame(const char *what, const QString &input, const QString &a, const QString &b)
{
    if (a == b)
        return;
    std::fprintf(stderr, "%s\ninput:  %s\nfirst:  %s\nsecond: %s\n", what, qPrintable(input), qPrintable(a),
                 qPrintable(b));
    std::abort();
}

#if defined(VYSMIL_FUZZER)
/// Ends the program, likewise, if \a work takes more of the heap than \a size characters can ask for: a text
/// that is made anew at each of its characters soon does.
template <typename Work>
void checkHeap(const char *what, qsizetype size, Work work)
{
    static size_t taken;
    static const int counting = __sanitizer_install_malloc_and_free_hooks(
        [](const volatile void *, size_t bytes) { taken += bytes; }, [](const volatile void *) {});
    taken = 0;
    work();
    constexpr size_t perCharacter = 1'000;
    constexpr size_t once = 1'000'000;
    if (counting != 0 && taken <= once + perCharacter * static_cast<size_t>(size))
        return;
    std::fprintf(stderr, "%s takes %zu bytes for %lld characters\n", what, taken,
                 static_cast<long long>(size));
    std::abort();
}
#else
/// Nobody counts without libFuzzer.
template <typename Work>
void checkHeap(const char *, qsizetype, Work work)
{
    work();
}
#endif

#endif
