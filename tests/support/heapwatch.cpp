// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include "heapwatch.h"

#include <QtGlobal>

#include <malloc.h>

#include <algorithm>
#include <cstddef>

// glibc's own allocator under the names by which it can still be reached when malloc is replaced.
extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
void __libc_free(void *memory);
}

namespace {

struct Counts
{
    std::ptrdiff_t taken = 0;
    std::ptrdiff_t calls = 0;
    std::ptrdiff_t used = 0;
    std::ptrdiff_t most = 0;
};
bool isWatching = false;
Counts counts;

std::ptrdiff_t sizeOf(void *memory)
{
    return static_cast<std::ptrdiff_t>(malloc_usable_size(memory));
}

void *take(void *memory)
{
    if (isWatching) {
        ++counts.calls;
        counts.taken += sizeOf(memory);
        counts.used += sizeOf(memory);
        counts.most = std::max(counts.most, counts.used);
    }
    return memory;
}

void give(void *memory)
{
    if (isWatching)
        counts.used -= sizeOf(memory);
}

} // namespace

// Qt allocates by these, and so does operator new. Exported, for them to find it.
extern "C" Q_DECL_EXPORT void *malloc(std::size_t size)
{
    return take(__libc_malloc(size));
}

extern "C" Q_DECL_EXPORT void *calloc(std::size_t count, std::size_t size)
{
    return take(__libc_calloc(count, size));
}

extern "C" Q_DECL_EXPORT void *realloc(void *memory, std::size_t size)
{
    give(memory);
    return take(__libc_realloc(memory, size));
}

extern "C" Q_DECL_EXPORT void free(void *memory)
{
    give(memory);
    __libc_free(memory);
}

HeapWatch::HeapWatch()
{
    counts = {};
    isWatching = true;
}

HeapWatch::~HeapWatch()
{
    isWatching = false;
}

double HeapWatch::taken() const
{
    return static_cast<double>(counts.taken);
}

double HeapWatch::calls() const
{
    return static_cast<double>(counts.calls);
}

double HeapWatch::inUse() const
{
    return static_cast<double>(counts.used);
}

double HeapWatch::peak() const
{
    return static_cast<double>(counts.most);
}
