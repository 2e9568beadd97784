// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_BENCHMARKS_COMPARISON_H
#define VYSMIL_BENCHMARKS_COMPARISON_H

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>
#include <vector>

/// Times \a work once, in seconds.
template <typename Work>
double seconds(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> &values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Makes \a ratio the result of the benchmark, named in the table with its \a baseline and its \a bound.
inline void report(benchmark::State &state, double ratio, const char *baseline, double bound)
{
    state.counters["ratio"] = ratio;
    state.counters["bound"] = bound;
    state.SetLabel(baseline);
}

/// Runs \a work a few times and adds the times to \a times, but for the first run, which finds caches and
/// heap as other work left them.
template <typename Work>
double measure(std::vector<double> &times, Work work)
{
    double total = 0;
    for (int run = 0; run < 6; ++run) {
        const double time = seconds(work);
        total += time;
        if (run > 0)
            times.push_back(time);
    }
    return total;
}

/// Runs \a subject and its \a baseline in turn and reports the ratio of their median times, multiplied by
/// \a scale.
template <typename Subject, typename Baseline>
void compare(benchmark::State &state, Subject subject, Baseline baseline, const char *baselineName,
             double bound, double scale = 1)
{
    std::vector<double> subjectTimes;
    std::vector<double> baselineTimes;
    for (auto _ : state) {
        state.SetIterationTime(measure(baselineTimes, baseline) + measure(subjectTimes, subject));
    }
    report(state, scale * median(subjectTimes) / median(baselineTimes), baselineName, bound);
}

/// Registers a benchmark that measures its own time.
template <typename... Args>
void addBenchmark(const std::string &name, Args &&...args)
{
    benchmark::RegisterBenchmark(name.c_str(), std::forward<Args>(args)...)->UseManualTime();
}

#endif
