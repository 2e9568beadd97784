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
std::ptrdiff_t used = 0;
std::ptrdiff_t most = 0;

std::ptrdiff_t sizeOf(void *memory)
{
    return static_cast<std::ptrdiff_t>(malloc_usable_size(memory));
}

void *taken(void *memory)
{
    if (isWatching) {
        used += sizeOf(memory);
        most = std::max(most, used);
    }
    return memory;
}

void give(void *memory)
{
    if (isWatching)
        used -= sizeOf(memory);
}

} // namespace

// Qt allocates by these, and so does operator new. Exported, for them to find it.
extern "C" Q_DECL_EXPORT void *malloc(std::size_t size)
{
    return taken(__libc_malloc(size));
}

extern "C" Q_DECL_EXPORT void *calloc(std::size_t count, std::size_t size)
{
    return taken(__libc_calloc(count, size));
}

extern "C" Q_DECL_EXPORT void *realloc(void *memory, std::size_t size)
{
    give(memory);
    return taken(__libc_realloc(memory, size));
}

extern "C" Q_DECL_EXPORT void free(void *memory)
{
    give(memory);
    __libc_free(memory);
}

HeapWatch::HeapWatch()
{
    used = 0;
    most = 0;
    isWatching = true;
}

HeapWatch::~HeapWatch()
{
    isWatching = false;
}

double HeapWatch::inUse() const
{
    return static_cast<double>(used);
}

double HeapWatch::peak() const
{
    return static_cast<double>(most);
}
