// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_BENCHMARKS_HEAPWATCH_H
#define VYSMIL_BENCHMARKS_HEAPWATCH_H

/// Counts what is allocated from the heap, in bytes, while the object lives. One at a time, in one thread.
class HeapWatch
{
public:
    HeapWatch();
    ~HeapWatch();
    HeapWatch(const HeapWatch &) = delete;
    HeapWatch &operator=(const HeapWatch &) = delete;

    /// What is in use more than at the start.
    double inUse() const;
    /// The most that was.
    double peak() const;
};

#endif
