#include "engine/Expression.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace velmora {
namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

void expectFound(std::optional<double> found, double expected, double tolerance, const char* what) {
    EXPECT_EQ(found.has_value(), !std::isnan(expected)) << what;
    if (found && !std::isnan(expected)) {
        EXPECT_NEAR(*found, expected, tolerance) << what;
    }
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
    for (const Row& row :
         {Row{"x ^ 2", "2", 1, 2, std::numbers::sqrt2}, Row{"sin( x )", "0", 3, 4, std::numbers::pi},
          Row{"ln( x )", "1", 2, 3, std::numbers::e}, Row{"cos( x )", "x", 0, 1, 0.7390851332151607},
          Row{"x", "0", -1, 0, 0}, Row{"x", "x", 3, 4, 3}, // the first end where both are equal
          Row{"x ^ 2", "0", -1, 1, kNone},                 // touches only, and at no end
          Row{"x ^ 2", "0", 0, 1, 0}, Row{"sqrt( x )", "1", -1, 2, kNone}, // not real at an end
          Row{"1 / x", "0", -1, 1, kNone},                                 // undefined in the middle
          Row{"1 / ( x - 0.3 )", "0", 0, 1, kNone}, // a pole with a rise at its upper side
          Row{"1 / ( 0.3 - x )", "0", 0, 1, kNone},
          // a step counts where it rises, and only there
          Row{"roundDown( x ) + 0.5", "0", -1, 1, 0}, Row{"0.5 - roundDown( x + 1 )", "0", -1, 1, kNone}}) {
        const auto f = parsed(row.f);
        expectFound(f->intersectionWithExpression(*parsed(row.g), row.a, row.b), row.x, 0x1p-51, row.f);
        if (row.g == std::string("0")) {
            expectFound(f->zero(row.a, row.b), row.x, 0x1p-51, row.f);
        }
    }
}

TEST(ExpressionAnalysis, classifiesThreeNeighbours) {
    struct Row {
        double l;
        double m;
        double r;
        int kind;
    };
    for (const Row& row :
         {Row{1, 1, 1, 0}, Row{2, 1, 2, 1}, Row{1, 2, 1, 2}, Row{1, 2, 3, 3}, Row{1, 1, 3, 3},
          Row{1, 3, 3, 3}, Row{3, 2, 1, 4}, Row{3, 3, 1, 4}, Row{1, kNone, 1, 5}, Row{kNone, 1, 2, 5}}) {
        EXPECT_EQ(Expression::classifyMinMax(row.l, row.m, row.r), row.kind) << row.l << row.m << row.r;
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
                           Row{"4", 0, kNone, false}, Row{"x", 0, kNone, false},
                           Row{"x ^ 2 + 11", 0.3, kNone, true}, Row{"sqrt( x )", 0.05, kNone, true}}) {
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
