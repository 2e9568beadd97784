// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Prints one table row per benchmark: what was measured, against what, the ratio, and the bound we hold it
// to.

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <climits>
#include <cstdio>

namespace {

class TableReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override
    {
        std::puts("| measured | baseline | ratio | at most |");
        std::puts("|---|---|---|---|");
        return true;
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            const double ratio = run.counters.at("ratio");
            const double bound = run.counters.at("bound");
            std::printf("| %s | %s | %.2f | %.2f |\n", run.run_name.function_name.c_str(),
                        run.report_label.c_str(), ratio, bound);
            std::fflush(stdout);
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    // What the heap once got it keeps. Otherwise it depends on what ran before, and not on what is compared,
    // who has to fetch pages again.
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
    mallopt(M_MMAP_THRESHOLD, INT_MAX);
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
