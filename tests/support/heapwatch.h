// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_HEAPWATCH_H
#define VYSMIL_TESTS_HEAPWATCH_H

/// What was taken from the heap, in bytes unless it says otherwise.
struct HeapUse
{
    double taken = 0; // all, whatever was given back
    double calls = 0; // how often
    double inUse = 0; // more than at the start
    double peak = 0;  // the most that was in use
};

// One at a time, in one thread. Replaces malloc, as the sanitizers do: no program has both.
void startHeapWatch();
HeapUse stopHeapWatch();

/// What \a work takes, whose result still lives when that is told.
template <typename Work>
HeapUse heapUse(Work work)
{
    startHeapWatch();
    [[maybe_unused]] const auto result = work();
    return stopHeapWatch();
}

#endif
