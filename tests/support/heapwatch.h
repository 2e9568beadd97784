// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_HEAPWATCH_H
#define VYSMIL_TESTS_HEAPWATCH_H

/// Counts what is taken from the heap, in bytes and in calls, while the object lives. One at a time, in one
/// thread. Replaces malloc, as the sanitizers do: no program has both.
class HeapWatch
{
public:
    HeapWatch();
    ~HeapWatch();
    HeapWatch(const HeapWatch &) = delete;
    HeapWatch &operator=(const HeapWatch &) = delete;

    /// All that was taken, whatever was given back.
    double taken() const;
    /// How often something was.
    double calls() const;
    /// What is in use more than at the start.
    double inUse() const;
    /// The most that was.
    double peak() const;
};

#endif
