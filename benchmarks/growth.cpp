// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Texts that are full of one thing: four times the text, at most six times the time.

#include "comparison.h"

#include "../tests/support/growth.h"
#include "../tools/storyboard/drawing.h"

#include <algorithm>
#include <ctime>
#include <string>

namespace {

constexpr qsizetype textSize = 15'000;
// What takes less is too short to be timed, in seconds.
constexpr double shortest = 1e-4;

// The least processor time of a few runs: other programs cannot make it longer only for the longer text.
double leastTime(const GrowthOperation &operation, const Grown &grown)
{
    double least = 1e9;
    for (int run = 0; run < 6; ++run) {
        const std::clock_t start = std::clock();
        operation.second(grown);
        least = std::min(least, static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    }
    return least;
}

// Reports the operation that grows most.
void benchShape(benchmark::State &state, const GrowthShape &shape)
{
    const qsizetype pieces = std::max<qsizetype>(4, textSize / shape.piece.size());
    const Grown small{MessageCase(shape.messageText(pieces))};
    const Grown large{MessageCase(shape.messageText(4 * pieces))};
    std::vector<GrowthOperation> operations = growthOperations();
    operations.emplace_back("drawing", [](const Grown &grown) { (void)drawingOf(grown.show); });
    double worst = 0;
    std::string name = "nothing that takes long";
    for (auto _ : state) {
        for (const GrowthOperation &operation : operations) {
            const double time = leastTime(operation, large);
            const double ratio = time / std::max(leastTime(operation, small), shortest / 4);
            if (time >= shortest && ratio > worst) {
                worst = ratio;
                name = operation.first;
            }
        }
        state.SetIterationTime(1);
    }
    report(state, worst, ("a quarter of it, " + name).c_str(), 6.0);
}

const bool registered = [] {
    for (const GrowthShape &shape : growthShapes()) {
        const std::string name = "growth: " + shape.name().toStdString();
        benchmark::RegisterBenchmark(name.c_str(), benchShape, shape)->UseManualTime()->Iterations(1);
    }
    return true;
}();

} // namespace
