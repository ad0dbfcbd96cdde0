// One evaluation of a line: the tree, the same function written by hand, and muParser.

#include "bench/Lines.h"
#include "engine/tree/Expression.h"

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <array>

namespace velmora::bench {

namespace {

/// The columns of one graph, from left to right, all in the real domain.
std::array<double, 1024> arguments(double sign) {
    std::array<double, 1024> x{};
    for (std::size_t i = 0; i < x.size(); ++i) {
        x[i] = sign * (0.05 + static_cast<double>(i) / 104.0);
    }
    return x;
}

void evaluateTree(benchmark::State& state, const Line& line, double sign) {
    const auto tree = Expression::newExpressionWithTokens(line.tokens);
    const auto x = arguments(sign);
    for (std::size_t i = 0; auto _ : state) {
        benchmark::DoNotOptimize(tree->valueWithVariableValue(x[i++ % x.size()]));
    }
}

void evaluateTwin(benchmark::State& state, const Line& line, double sign) {
    auto* volatile hidden = line.twin;
    const auto x = arguments(sign);
    for (std::size_t i = 0; auto _ : state) {
        benchmark::DoNotOptimize(hidden(x[i++ % x.size()]));
    }
}

void evaluateMuParser(benchmark::State& state, const Line& line) {
    mu::Parser parser;
    double variable = 1;
    parser.DefineVar("x", &variable);
    parser.SetExpr(line.muParserText);
    parser.Eval();
    const auto x = arguments(1);
    for (std::size_t i = 0; auto _ : state) {
        variable = x[i++ % x.size()];
        benchmark::DoNotOptimize(parser.Eval());
    }
}

const bool kRegistered = [] {
    for (const Line& line : lines()) {
        benchmark::RegisterBenchmark(("evaluate/tree/" + line.name).c_str(), evaluateTree, line, 1.0);
        benchmark::RegisterBenchmark(("evaluate/twin/" + line.name).c_str(), evaluateTwin, line, 1.0);
        benchmark::RegisterBenchmark(("evaluate/muparser/" + line.name).c_str(), evaluateMuParser, line);
    }
    benchmark::RegisterBenchmark("evaluate/tree/complex", evaluateTree, complexLine(), -1.0);
    benchmark::RegisterBenchmark("evaluate/twin/complex", evaluateTwin, complexLine(), -1.0);
    return true;
}();

} // namespace

} // namespace velmora::bench
