#include "engine/intervals/IntervalProgram.h"

#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
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
    const IntervalProgram program(*tree);
    for (int i = 0; i < boxCount; ++i) {
        const auto [lowest, highest] = boxes.next();
        const DecoratedInterval range = program.value(lowest, highest);
        for (int j = 0; j < 8; ++j) {
            const double share = std::uniform_real_distribution(0.0, 1.0)(boxes.random);
            const double x = j == 0 ? lowest : j == 1 ? highest : std::lerp(lowest, highest, share);
            const ComplexValue value = tree->valueWithVariableValue(x);
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
    const EnvironmentScope scope(definitions.environment);
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

} // namespace
} // namespace velmora
