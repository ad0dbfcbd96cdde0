#include "engine/intervals/IntervalProgram.h"

#include "tests/engine/TokenLine.h"
#include "tests/engine/UlpDistance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace velmora {
namespace {

// Every function that has a real rule, and forms that people draw.
const std::vector<std::string> kLines{"x ^ 2 - 3 x + 1",
                                      "x ^ 3 / ( x - 2 )",
                                      "x ^ 5 - x ^ 4",
                                      "x ^ N 2",
                                      "x ^ N 3",
                                      "x ^ .5",
                                      "x ^ N .5",
                                      "x ^ x",
                                      "2 ^ x",
                                      "( N 3 ) ^ x",
                                      "x ^ ( 1 / 3 )",
                                      "( x ^ 2 - 4 ) / ( x - 2 )",
                                      "1 / x",
                                      "x / ( x + 1 )",
                                      "abs( x )",
                                      "sin( x )",
                                      "cos( x )",
                                      "tan( x )",
                                      "csc( x )",
                                      "sec( x )",
                                      "cot( x )",
                                      "sin( 100 x )",
                                      "sin( 1 / x )",
                                      "x sin( x )",
                                      "asin( x )",
                                      "acos( x )",
                                      "atan( x )",
                                      "sinh( x )",
                                      "cosh( x )",
                                      "tanh( x )",
                                      "csch( x )",
                                      "sech( x )",
                                      "coth( x )",
                                      "ln( x )",
                                      "log( x )",
                                      "logbase( x , 10 )",
                                      "logbase( 2 , x )",
                                      "cbrt( x )",
                                      "sqrt( x )",
                                      "sqrt( x - 1 )",
                                      "sqrt( sqrt( x ) )",
                                      "sqrt( x ) ^ 2",
                                      "sqrt( 1 - x ^ 2 )",
                                      "nroot( 3 , x )",
                                      "nroot( 4 , x )",
                                      "nroot( N 5 , x )",
                                      "nroot( x , 2 )",
                                      "fact( x )",
                                      "round( x )",
                                      "roundUp( x )",
                                      "roundDown( x )",
                                      "cSoundInAir( x )",
                                      "ISATemp( 1000 x )",
                                      "ISAPressure( 1000 x )",
                                      "ISADensitySlugsFt3( 1000 x )",
                                      "ISADensityKgM3( 1000 x )",
                                      "bell( x )",
                                      "cumNormDist( x )",
                                      "erf( x )",
                                      "toFraction( x )",
                                      "Re( x )",
                                      "Im( x )",
                                      "conj( x )",
                                      "arg( x )",
                                      "normVarBetween( x , 1 )",
                                      "perm( x , 2 )",
                                      "comb( x , 2 )",
                                      "comb( 5 , x )",
                                      "mod( x , 3 )",
                                      "mod( x , N 2.5 )",
                                      "modPos( x , 3 )",
                                      "modPos( x , N 2.5 )",
                                      "mod( 7 , x )",
                                      "lcm( x , 4 )",
                                      "gcd( x , 6 )",
                                      "min( x , x ^ 2 )",
                                      "max( sin( x ) , cos( x ) )",
                                      "conditional( 1 , x ^ 2 , sqrt( x ) )",
                                      "conditional( x , 1 , 2 )",
                                      "y1( x + 1 )",
                                      "y2( y1( x ) )",
                                      "@k1 x",
                                      "sin( asin( x ) )",
                                      "ln( x ) * i * i",
                                      "e ^ ( i x )",
                                      "x / ( i + 1 )",
                                      "1E200 x * 1E200 x",
                                      "x - x",
                                      "( x + 1 ) / ( x ^ 2 + 1E-300 )"};

struct WithEquations : Definitions {
    WithEquations() {
        load(equations, 0, "x ^ 2 - sqrt( x )");
        load(equations, 1, "sin( x ) / x");
        constants.setExpressionAtIndex(0, ExpressionWithTokenArray(tokens("sqrt( 3 ) + 1")), false);
    }
};

/// Boxes of all sizes, many with an end at 0 or at a whole number, where functions begin and end.
struct Boxes {
    double end() {
        const double magnitude = std::exp2(std::uniform_real_distribution(-30.0, 12.0)(random));
        const double value = std::bernoulli_distribution(0.5)(random) ? magnitude : -magnitude;
        return std::bernoulli_distribution(0.3)(random) ? std::round(value) : value;
    }
    std::pair<double, double> next() {
        const double one = end();
        const double share = std::exp2(std::uniform_real_distribution(-40.0, 2.0)(random));
        const double other = std::bernoulli_distribution(0.5)(random) ? end() : one + std::fabs(one) * share;
        return std::minmax(one, other);
    }
    std::mt19937_64 random{20261};
};

void checkLine(const std::string& line, AngleMode mode, int boxCount, Boxes& boxes) {
    Environment::current().setAngleMode(mode);
    const auto tree = parsed(line);
    ASSERT_EQ(tree->errorDescription(), std::nullopt) << line;
    const IntervalProgram program(*tree);
    for (int i = 0; i < boxCount; ++i) {
        const auto [lowest, highest] = boxes.next();
        const DecoratedInterval range = program.value(lowest, highest);
        for (int j = 0; j < 8; ++j) {
            const double share = std::uniform_real_distribution(0.0, 1.0)(boxes.random);
            const double x = j == 0 ? lowest : j == 1 ? highest : std::lerp(lowest, highest, share);
            const ComplexValue value = tree->valueWithVariableValue(x);
            if (std::isinf(value.real())) {
                continue; // an overflow or the value at a pole, which nothing draws
            }
            const bool hasRealValue = isReal(value) && !std::isnan(value.real());
            ASSERT_TRUE(hasRealValue ? range.contains(value.real()) : range.decoration < Decoration::Defined)
                << line << " at " << x << " in [" << lowest << ", " << highest << "]: " << value
                << " against [" << range.lowest << ", " << range.highest << "], decoration "
                << static_cast<int>(range.decoration) << (mode == AngleMode::Degrees ? ", degrees" : "");
        }
    }
}

TEST(IntervalProgram, enclosesEveryValueAndSaysWhereThereIsNone) {
    WithEquations definitions;
    Boxes boxes;
    const char* wished = std::getenv("VELMORA_INTERVAL_BOXES");
    const int boxCount = wished != nullptr ? std::atoi(wished) : 200;
    for (const std::string& line : kLines) {
        for (const AngleMode mode : {AngleMode::Radians, AngleMode::Degrees}) {
            checkLine(line, mode, boxCount, boxes);
            if (HasFatalFailure()) {
                break;
            }
        }
    }
}

TEST(IntervalProgram, isTightOnMonotonePieces) {
    struct Row {
        const char* line;
        double lowest;
        double highest;
        double least; ///< the true least and greatest values, rounded (Abramowitz and Stegun, tables of ch.
                      ///< 4, 7)
        double greatest;
    };
    const Row rows[] = {
        {"sin( x )", 0.5, 1, 0.479425538604203, 0.8414709848078965},
        {"sin( x )", 1, 2, 0.8414709848078965, 1},
        {"cos( x )", 1, 4, -1, 0.5403023058681398},
        {"tan( x )", 0, 1, 0, 1.5574077246549023},
        {"atan( x )", 0, 1, 0, 0.7853981633974483},
        {"asin( x )", 0, 1, 0, 1.5707963267948966},
        {"e ^ x", 0, 1, 1, 2.718281828459045},
        {"ln( x )", 1, 2, 0, 0.6931471805599453},
        {"log( x )", 2, 1000, 0.3010299956639812, 3},
        {"sqrt( x )", 2, 4, 1.4142135623730951, 2},
        {"cbrt( x )", -2, 8, -1.2599210498948732, 2},
        {"cosh( x )", -1, 0.5, 1, 1.5430806348152437},
        {"tanh( x )", 0, 1, 0, 0.7615941559557649},
        {"erf( x )", 0, 1, 0, 0.8427007929497149},
        {"x ^ 4 - 1", -1, 2, -1, 15},
        {"1 / x", 3, 7, 0.14285714285714285, 0.3333333333333333},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line);
        const DecoratedInterval range = IntervalProgram(*parsed(row.line)).value(row.lowest, row.highest);
        EXPECT_EQ(range.decoration, Decoration::DefinedAndContinuous);
        EXPECT_TRUE(range.contains(row.least) && range.contains(row.greatest));
        EXPECT_LE(ulpDistance(range.lowest, row.least), 2);
        EXPECT_LE(ulpDistance(range.highest, row.greatest), 2);
    }
}

TEST(IntervalProgram, saysHowFarALineIsDefinedAndContinuous) {
    struct Row {
        const char* line;
        double lowest;
        double highest;
        Decoration decoration;
        bool mayBeComplex;
    };
    using enum Decoration;
    const Row rows[] = {
        {"sqrt( x )", 0, 4, DefinedAndContinuous, false},
        {"sqrt( x )", -1, 4, PossiblyUndefined, true},
        {"sqrt( x )", -2, -1, NowhereDefined, true},
        {"sqrt( x ) + 1", -2, -1, NowhereDefined, true},    // i + 1 is no real number
        {"sqrt( x ) ^ 2", -2, -1, PossiblyUndefined, true}, // but i squared is one
        {"1 / x", -1, 1, PossiblyUndefined, false},
        {"1 / x", 1, 2, DefinedAndContinuous, false},
        {"1 / ( x - x )", 1, 1, NowhereDefined, false},
        {"roundDown( x )", 0.25, 0.75, DefinedAndContinuous, false},
        {"roundDown( x )", 0.75, 1.25, Defined, false},
        {"conditional( 2 , x , 5 )", 0, 1, DefinedAndContinuous, false},
        {"conditional( 2 , x , 5 )", 0, 3, Defined, false},
        {"tan( x )", 1, 2, PossiblyUndefined, false},
        {"mod( x , 3 )", 1, 2, DefinedAndContinuous, false},
        {"mod( x , 3 )", 2, 4, Defined, false},
        {"fact( x )", -1.5, -1.25, DefinedAndContinuous, false},
        {"fact( x )", -2.5, -1.5, PossiblyUndefined, false},
        {"( N 3 ) ^ x", 1, 2, PossiblyUndefined, true},
        {"BesselJ_n( 1 , x )", 1, 2, NowhereDefined, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.line);
        const DecoratedInterval range = IntervalProgram(*parsed(row.line)).value(row.lowest, row.highest);
        EXPECT_EQ(range.decoration, row.decoration);
        EXPECT_EQ(range.mayBeComplex, row.mayBeComplex);
    }
}

TEST(IntervalProgram, knowsNothingOfWhatItCannotLayOut) {
    Definitions definitions;
    definitions.load(definitions.equations, 0, "y1( x ) + 1"); // as a file may bring it in
    EXPECT_EQ(IntervalProgram(*parsed("y1( x )")).value(0, 1).decoration, Decoration::PossiblyUndefined);
    std::string sum = "x";
    for (int i = 0; i < 60; ++i) {
        sum = "( 1 + " + sum + " )";
    }
    EXPECT_TRUE(IntervalProgram(*parsed(sum)).value(0, 1).mayBeComplex);
}

TEST(IntervalProgram, takesBoxesOfTwoVariables) {
    const auto tree = parsed("x ^ 2 + y ^ 2 - 25");
    const IntervalProgram program(*tree, IntervalProgram::Variables::Two);
    const DecoratedInterval range = program.value({3, 4}, {-1, 2});
    EXPECT_EQ(range.lowest, 9 + 0 - 25);
    EXPECT_EQ(range.highest, 16 + 4 - 25);
    EXPECT_LT(program.value({6, 7}, {-1, 1}).lowest, 12);
    EXPECT_GT(program.value({6, 7}, {-1, 1}).lowest, 0); // wholly outside of the circle
}

} // namespace
} // namespace velmora
