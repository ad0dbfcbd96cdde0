// Parsing a line: 50 alternating operands and operators against muParser, and growth with length and depth.

#include "bench/AllocationCount.h"
#include "bench/Lines.h"
#include "engine/tree/Expression.h"

#include <benchmark/benchmark.h>
#include <muParser.h>

#include <memory>
#include <string>

namespace velmora::bench {

namespace {

/// Operands and operators in turn, `symbols` of them.
std::string alternating(int symbols, const char* separator) {
    constexpr const char* kOperands[] = {"x", "2", "7", "x", "3"};
    constexpr const char* kOperators[] = {"+", "*", "-", "/"};
    std::string text;
    for (int i = 0; i < symbols; ++i) {
        text += i % 2 == 0 ? kOperands[(i / 2) % 5] : kOperators[(i / 2) % 4];
        text += separator;
    }
    return symbols % 2 == 0 ? text + "x" : text;
}

std::string nested(int symbols) {
    const int depth = symbols / 2;
    std::string text;
    for (int i = 0; i < depth; ++i) {
        text += "( ";
    }
    text += "x ";
    for (int i = 0; i < depth; ++i) {
        text += ") ";
    }
    return text;
}

/// The bytes that making a thing leaves allocated, as the heap rounds them up.
template <typename Make> double bytesHeld(Make make) {
    const long before = heldBytes();
    const auto held = make();
    benchmark::DoNotOptimize(held);
    return static_cast<double>(heldBytes() - before);
}

void parseTokens(benchmark::State& state, const TokenArray& tokens) {
    state.counters["bytes"] = bytesHeld([&] { return Expression::newExpressionWithTokens(tokens); });
    for (auto _ : state) {
        benchmark::DoNotOptimize(Expression::newExpressionWithTokens(tokens));
    }
}

void parseMuParser(benchmark::State& state) {
    const std::string text = alternating(50, "");
    double variable = 1.5;
    state.counters["bytes"] = bytesHeld([&] {
        auto parser = std::make_unique<mu::Parser>();
        parser->DefineVar("x", &variable);
        parser->SetExpr(text);
        parser->Eval();
        return parser;
    });
    mu::Parser parser;
    parser.DefineVar("x", &variable);
    for (auto _ : state) {
        parser.SetExpr(text);
        benchmark::DoNotOptimize(parser.Eval()); // muParser reads its text at the first evaluation
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("parse/tree/50", parseTokens, tokensOf(alternating(50, " ")));
    benchmark::RegisterBenchmark("parse/muparser/50", parseMuParser);
    for (const int symbols : {500, 2000, 8000}) {
        benchmark::RegisterBenchmark(("parse/flat/" + std::to_string(symbols)).c_str(), parseTokens,
                                     tokensOf(alternating(symbols, " ")));
        benchmark::RegisterBenchmark(("parse/nested/" + std::to_string(symbols)).c_str(), parseTokens,
                                     tokensOf(nested(symbols)));
    }
    return true;
}();

} // namespace

} // namespace velmora::bench
