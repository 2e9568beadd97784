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

bool isWatching = false;
HeapUse use;

double sizeOf(void *memory)
{
    return static_cast<double>(malloc_usable_size(memory));
}

void *take(void *memory)
{
    if (isWatching) {
        ++use.calls;
        use.taken += sizeOf(memory);
        use.inUse += sizeOf(memory);
        use.peak = std::max(use.peak, use.inUse);
    }
    return memory;
}

void give(void *memory)
{
    if (isWatching)
        use.inUse -= sizeOf(memory);
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

void startHeapWatch()
{
    use = {};
    isWatching = true;
}

HeapUse stopHeapWatch()
{
    isWatching = false;
    return use;
}
