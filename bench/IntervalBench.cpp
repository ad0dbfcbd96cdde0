// One box of a line against one point of it: what the enclosure of its values costs.

#include "bench/Lines.h"
#include "engine/intervals/IntervalProgram.h"
#include "engine/tree/Expression.h"

#include <benchmark/benchmark.h>

#include <cstddef>

namespace velmora::bench {

namespace {

/// The width of a column of a graph ten wide.
constexpr double kWidth = 10.0 / 1024;

double argument(std::size_t column) { return 0.05 + static_cast<double>(column % 1024) * kWidth; }

void point(benchmark::State& state, const Line& line) {
    const auto tree = Expression::newExpressionWithTokens(line.tokens);
    for (std::size_t i = 0; auto _ : state) {
        benchmark::DoNotOptimize(tree->valueWithVariableValue(argument(i++)));
    }
}

void box(benchmark::State& state, const Line& line) {
    const auto tree = Expression::newExpressionWithTokens(line.tokens);
    const IntervalProgram program(*tree);
    for (std::size_t i = 0; auto _ : state) {
        const double x = argument(i++);
        benchmark::DoNotOptimize(program.value(x, x + kWidth));
    }
}

const int kRegistered = [] {
    for (const Line& line : lines()) {
        benchmark::RegisterBenchmark(("Interval/point/" + line.name).c_str(), point, line);
        benchmark::RegisterBenchmark(("Interval/box/" + line.name).c_str(), box, line);
    }
    return 0;
}();

} // namespace

} // namespace velmora::bench
