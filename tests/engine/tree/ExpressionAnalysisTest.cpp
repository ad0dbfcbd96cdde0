#include "engine/tree/Expression.h"
#include "tests/engine/SpecialNumbers.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>

namespace velmora {
namespace {

void expectFound(std::optional<double> found, double expected, double tolerance, const char* what) {
    EXPECT_EQ(found.has_value(), !std::isnan(expected)) << what;
    EXPECT_TRUE(!found || std::fabs(*found - expected) <= tolerance) << what;
}

TEST(ExpressionAnalysis, findsCrossingsToTheLastDigit) {
    const Definitions definitions;
    struct Row {
        const char* f;
        const char* g;
        double a;
        double b;
        double x;
    };
    // clang-format off
    const Row rows[] = {
        {"x ^ 2", "2", 1, 2, std::numbers::sqrt2}, {"sin( x )", "0", 3, 4, std::numbers::pi},
        {"ln( x )", "1", 2, 3, std::numbers::e}, {"cos( x )", "x", 0, 1, 0.7390851332151607},
        {"x", "0", -1, 0, 0}, {"x", "x", 3, 4, 3}, // the first end where both are equal
        {"x ^ 2", "0", -1, 1, kNaN}, {"x ^ 2", "0", 0, 1, 0}, // touching counts only at an end
        {"sqrt( x )", "1", -1, 2, kNaN}, {"1 / x", "0", -1, 1, kNaN}, // not real at an end, in the middle
        // a pole with a rise at its upper side
        {"1 / ( x - 0.3 )", "0", 0, 1, kNaN}, {"1 / ( 0.3 - x )", "0", 0, 1, kNaN},
        // a step counts where it rises, and only there; how far its ends lie off counts in whole units
        {"roundDown( x ) + 0.6", "0", -1, 1, 0}, {"0.5 - roundDown( x + 1 )", "0", -1, 1, kNaN},
    };
    // clang-format on
    for (const Row& row : rows) {
        const auto f = parsed(row.f);
        expectFound(f->intersectionWithExpression(*parsed(row.g), row.a, row.b), row.x, 0x1p-51, row.f);
        if (row.g == std::string("0")) {
            expectFound(f->zero(row.a, row.b), row.x, 0x1p-51, row.f);
        }
    }
}

TEST(ExpressionAnalysis, classifiesThreeNeighbours) {
    const std::tuple<double, double, double, int> rows[] = {
        {1, 1, 1, 0}, {2, 1, 2, 1}, {1, 2, 1, 2}, {1, 2, 3, 3},    {1, 1, 3, 3},
        {1, 3, 3, 3}, {3, 2, 1, 4}, {3, 3, 1, 4}, {1, kNaN, 1, 5}, {kNaN, 1, 2, 5}};
    for (const auto& [l, m, r, kind] : rows) {
        EXPECT_EQ(Expression::classifyMinMax(l, m, r), kind) << l << m << r;
    }
}

TEST(ExpressionAnalysis, findsTheNearestExtremumInSight) {
    const Definitions definitions;
    struct Row {
        const char* f;
        double x0;
        double x;
        bool isMin;
    };
    // in [-10, 10] by [-10, 10], in steps of 0.1
    for (const Row& row : {Row{"x ^ 2", 0.3, 0, true}, Row{"3 - ( x - 1 ) ^ 2", 0, 1, false},
                           Row{"x ^ 3 - 3 * x", -0.2, -1, false}, Row{"x ^ 3 - 3 * x", 0.2, 1, true},
                           Row{"sin( x )", 4, 3 * std::numbers::pi / 2, true}, Row{"cos( x )", 0, 0, false},
                           Row{"4", 0, kNaN, false}, Row{"x", 0, kNaN, false},
                           Row{"x ^ 2 + 11", 0.3, kNaN, true}, Row{"sqrt( x )", 0.05, kNaN, true}}) {
        const auto f = parsed(row.f);
        const auto found = f->findMinMax(-10, 10, -10, 10, row.x0, 0.1);
        // An extremum is flat: doubles see it only to about the root of their precision.
        expectFound(found ? std::optional(found->x) : std::nullopt, row.x, 1e-7, row.f);
        if (found) {
            EXPECT_EQ(found->isMin, row.isMin) << row.f;
            EXPECT_EQ(found->expression, f.get());
        }
    }
}

} // namespace
} // namespace velmora
