#include "engine/tree/Evaluation.h"

#include "engine/tree/BivarFunction.h"
#include "platform/machine/RandomSource.h"
#include "tests/engine/SpecialNumbers.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <tuple>

namespace velmora {
namespace {

bool same(ComplexValue a, ComplexValue b) {
    const auto part = [](double one, double other) {
        return one == other || (std::isnan(one) && std::isnan(other));
    };
    return part(a.real(), b.real()) && part(a.imag(), b.imag());
}

TEST(Evaluation, showsTheResultOfALine) {
    // clang-format off
    const std::pair<const char*, const char*> rows[] = {
        {"- 2 ^ 2", "-4"}, {"2 ^ - 3", "0.125"}, {"1 / 3", "0.33333"},
        {"1 / 3 0 0 0", "3.33333E-04"}, {"5 / 0", "Undefined"}, {"i / 0", "Undefined"}, {"0 / i", "0"},
        {"0 ^ - 1", "Very large or infinite"}, {"ln( 0 )", "Very negative or negative infinity"},
        {"0 ^ 0", "1"}, {"2 + 3 i", "2+3i"}, {"i i", "-1"}, {"e ^ ( i π )", "-1"}, // but for rounding
        {"( 1 + i ) / ( 1 - i )", "i"}, {"sqrt( - 4 )", "2i"},
        {"sqrt( - ( 4 ) )", "2i"}, // no minus zero chooses the other branch
        {"ln( - 1 )", "3.14159i"},
        {"ln( ( - 2 - 1 E - 3 0 0 i ) * 1 E - 3 0 )", "-68.3844+3.14159i"}, // nor does an underflow
        {"( - 8 ) ^ ( 1 / 3 )", "-2"},
        {"( - 8 ) ^ ( 2 / 3 )", "4"}, {"( - 8 ) ^ ( 2 / 4 )", "Undefined"},
        {"( - 4 ) ^ ( 1 / 2 )", "Undefined"}, {"( - 4 ) ^ . 5", "2i"}, {"0 ^ ( 1 / 2 )", "Undefined"},
        {"toFraction( 0 . 7 5 )", "(3/4)"}, {"toMixedNumber( - 7 / 2 )", "-(3+1/2)"},
        {"toFraction( 1 / 2 ) + 1", "1.5"}, // only the outermost function chooses the form
        {"toFraction( 1 / 0 )", "Undefined"}, {"x + 1", "Undefined"}, {"x i", "Undefined"},
    };
    // clang-format on
    for (const auto& [line, text] : rows) {
        EXPECT_EQ(shown(line), text) << line;
    }
}

TEST(Evaluation, givesEachVariableItsValue) {
    struct Row {
        const char* line;
        ComplexValue x;
        ComplexValue one; ///< with every variable at x
        ComplexValue two; ///< with y at 10
    };
    // clang-format off
    const Row rows[] = {
        {"x + 2 t + 4 θ", 3, 21, 21}, {"y", 3, 3, 10}, {"x ^ 2 - y", {0, 1}, {-1, -1}, -11},
        {"2", {0, 1}, 2, 2}, {"x + 1 / ( y - 1 0 )", 3, 3 - 1.0 / 7, {kNaN, 0}},
        {"''", 3, {kNaN, 0}, {kNaN, kNaN}}, // what has no value at all
        {"sqrt( x )", -4, {0, 2}, {0, 2}}, {"sqrt( x ) ^ 2", -4, -4, -4},
        {"ln( - x )", 1, {0, std::acos(-1)}, {0, std::acos(-1)}}, {"x i", {kNaN, 0}, {kNaN, 0}, {kNaN, 0}},
        {"x ^ 0", kNaN, kNaN, kNaN}, {"min( x , 1 )", kNaN, kNaN, kNaN}, {"abs( x )", {3, 4}, 5, 5},
        {"x * 0", kInfinity, kNaN, kNaN},
    };
    // clang-format on
    for (const Row& row : rows) {
        const auto tree = parsed(row.line);
        EXPECT_TRUE(same(tree->valueWithVariableValue(row.x), row.one)) << row.line;
        EXPECT_TRUE(same(tree->valueWithVariableValues(row.x, 10.0), row.two)) << row.line;
    }
    EXPECT_EQ(parsed("x + 1 E - 1 2 i")->roundedRealValueWithVariableValue(4.0), 4.0);
    EXPECT_TRUE(std::isnan(parsed("x + 1 E - 1 1 i")->roundedRealValueWithVariableValue(4.0)));
}

TEST(Evaluation, aConditionalChoosesByTheVariable) {
    PlainEnvironment environment;
    const EnvironmentScope scope(environment);
    struct Row {
        const char* line;
        ComplexValue x;
        ComplexValue value;
        const char* alert;
    };
    const char* const complexVariable = "In conditional, variable value must be real.";
    const char* const complexBound = "First input to conditional must be real.";
    // clang-format off
    const Row rows[] = {
        {"conditional( 2 , x , 0 )", 2, 2, ""}, // the bound belongs to the left part
        {"conditional( 2 , x , 0 )", std::nextafter(2.0, 3.0), 0, ""},
        {"conditional( 2 , i , 0 )", 1, {0, 1}, ""}, {"conditional( x - 1 , 1 , 2 )", 5, 2, ""},
        {"conditional( 2 , 1 / 0 , 5 )", 3, 5, ""}, // the other part is not asked
        {"conditional( 1 / 0 , 1 , 2 )", 3, kNaN, ""},
        {"conditional( 2 , 1 , 3 )", {0, 1}, kNaN, complexVariable},
        {"conditional( i , 1 , 3 )", {0, 1}, kNaN, complexVariable},
        {"conditional( i , 1 , 3 )", 1, kNaN, complexBound},
    };
    // clang-format on
    for (const Row& row : rows) {
        environment.lastAlert.clear();
        environment.forgetOneShotAlerts();
        EXPECT_TRUE(same(valueAt(row.line, row.x), row.value)) << row.line;
        EXPECT_EQ(environment.lastAlert, row.alert) << row.line;
    }
    const auto tree = parsed("conditional( 0 , x , y )"); // looks at the first of two variables
    EXPECT_EQ(tree->valueWithVariableValues(-1.0, 7.0), -1.0);
    EXPECT_EQ(tree->valueWithVariableValues(1.0, -7.0), -7.0);
    EXPECT_TRUE(isNaN(tree->value()));
}

TEST(Evaluation, saysOnceWhatHasNoComplexRule) {
    PlainEnvironment environment;
    const EnvironmentScope scope(environment);
    // clang-format off
    const std::pair<std::vector<const char*>, const char*> rows[] = {
        {{"fact( i )"},
         "It is possible to define the factorial of a complex number, but this calculator does not do it."},
        {{"erf( i )"}, "It is possible to define the error function of a complex argument, "
                       "but this calculator does not do it."},
        {{"toFraction( i )", "toMixedNumber( i )"},
         "We do not try to define what it means to turn a complex number into a fraction."},
        {{"roundUp( i )", "roundDown( i )"},
         "We do not try to define what it means to round a complex number up or down."},
        {{"cumNormDist( i )"}, "There is a complex error function, but this calculator does not have it."},
        {{"bell( i )", "round( i )", "rand( i )", "cSoundInAir( i )", "ISATemp( i )", "ISAPressure( i )",
          "ISADensityKgM3( i )", "ISADensitySlugsFt3( i )", "perm( i , 1 )", "comb( 1 , i )", "mod( i , 1 )",
          "modPos( i , 1 )", "normVarBetween( 0 , i )", "lcm( i , 1 )", "gcd( 1 2 , i )", "min( i , 1 )",
          "max( 1 , i )", "BesselJ_n( 0 , i )", "BesselY_n( 0 , i )"}, ""}, // undefined without a word
    };
    // clang-format on
    for (const auto& [lines, text] : rows) {
        for (const char* line : lines) {
            environment.forgetOneShotAlerts();
            environment.lastAlert.clear();
            environment.alertCount = 0;
            EXPECT_EQ(shown(line), "Undefined") << line;
            EXPECT_EQ(shown(line), "Undefined") << line;
            EXPECT_EQ(environment.lastAlert, text) << line;
            EXPECT_EQ(environment.alertCount, *text == 0 ? 0 : 1) << line;
        }
    }
    for (int type = 18; type <= 21; ++type) {
        const BivarFunction comparison(static_cast<BivarType>(type), tokens("x"), tokens("1"));
        environment.forgetOneShotAlerts();
        environment.lastAlert.clear();
        EXPECT_TRUE(isNaN(comparison.valueWithVariableValue({0, 1})));
        EXPECT_EQ(environment.lastAlert, "This calculator does not define inequalities on complex numbers.");
    }
}

TEST(Evaluation, drawsARandomNumberAtEveryEvaluation) {
    std::uint32_t drawn = 0;
    const RandomSourceScope scope([&drawn] { return drawn++; });
    const auto tree = parsed("1 0 0 rand( 1 0 ) + rand( 1 0 )");
    EXPECT_EQ(tree->value(), 1.0);
    EXPECT_EQ(tree->value(), 203.0);
    EXPECT_EQ(tree->valueWithVariableValue(0.0), 405.0);
    // A constant's value is drawn once an evaluation, wherever it stands.
    Definitions user;
    user.load(user.constants, 0, "rand( 1 0 )");
    EXPECT_EQ(shown("@k1 - @k1"), "0");
    EXPECT_EQ(shown("1 0 @k1 + @k1"), "77");
    const auto ofBound = parsed("rand( x )");
    // clang-format off
    const std::tuple<double, std::uint32_t, double> rows[] = {
        {0, 7, 0}, {0.4, 7, 0}, {6, 7, 1}, {-6, 11, 5}, {5.5, 11, 5}, {1, 1234, 0},
        {1e15, 4294967295U, 4294967295.0}};
    // clang-format on
    for (const auto& [bound, number, value] : rows) {
        drawn = number;
        EXPECT_EQ(ofBound->valueWithVariableValue(bound), value) << bound;
    }
}

TEST(Evaluation, angleModeHoldsForTheScopeOfItsEnvironment) {
    const auto sine = parsed("sin( x )"); // a tree holds no mode
    {
        PlainEnvironment degrees;
        degrees.setAngleMode(AngleMode::Degrees);
        const EnvironmentScope scope(degrees);
        EXPECT_EQ(sine->valueWithVariableValue(90.0), 1.0);
        EXPECT_EQ(shown("asin( 1 )"), "90");
        EXPECT_EQ(shown("arg( - 1 )"), "3.14159"); // no angle of the user's
    }
    EXPECT_EQ(sine->valueWithVariableValue(90.0), std::sin(90.0));
}

/// Lines of every kind of node, most of them readable.
class RandomLines {
public:
    std::string next(int depth) {
        const auto& shapes = kinds[m_random() % (depth == 0 ? 2 : kinds.size())];
        std::string line = shapes[m_random() % shapes.size()];
        for (auto at = line.find('#'); at != std::string::npos; at = line.find('#')) {
            line.replace(at, 1, next(depth - 1));
        }
        return line;
    }

private:
    // clang-format off
    const std::vector<const char*> operators{"# + #", "# - #", "# * #", "# / #", "# ^ #", "# #"};
    const std::vector<std::vector<const char*>> kinds{
        {"x", "x", "y", "t", "@k1", "@k2"}, {"2", "3", ". 5", "0", "i", "e", "π", "1 E - 9", "G=6.6742(8)"},
        operators, operators, operators, {"( # )"}, {"- #"}, {"conditional( # , # , # )"},
        {"gcd( # , # )", "nroot( # , # )", "mod( # , # )", "min( # , # )", "logbase( # , # )",
         "normVarBetween( # , # )", "perm( # , # )"},
        {"sin( # )", "asin( # )", "tanh( # )", "sqrt( # )", "ln( # )", "abs( # )", "cbrt( # )", "fact( # )",
         "y1( # )", "y2( # )", "Re( # )", "roundUp( # )", "toFraction( # )", "ISATemp( # )", "arg( # )"}};
    // clang-format on
    std::mt19937 m_random{20260101};
};

TEST(Evaluation, theProgramOfALineAgreesWithItsTreeBitForBit) {
    Definitions user;
    user.load(user.equations, 0, "x ^ 2 - 2");
    user.load(user.equations, 1, "y1( x ) + sqrt( x )");
    user.load(user.constants, 0, "1 + 2");
    user.load(user.constants, 1, "x / @k1");
    RandomLines lines;
    int undefined = 0;
    int complex = 0;
    int compared = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::string line = lines.next(i % 5);
        const auto tree = parsed(line);
        for (const double x : {0.75, -2.0, 0.0, 1e200, kInfinity, kNaN}) {
            const ComplexValue z = x;
            const ComplexValue fast = tree->valueWithVariableValue(z);
            EvaluationBudget budget;
            GeneralEvaluation general({.byType = {z, z, z}}, budget);
            const ComplexValue slow = complexOf(*tree, general.evaluation);
            ASSERT_TRUE(same(fast, slow)) << line << " at " << x << ": " << fast << " is not " << slow;
            ASSERT_TRUE(std::isnan(fast.real()) || std::signbit(fast.real()) == std::signbit(slow.real()))
                << line << " at " << x;
            ++compared;
            undefined += isNaN(fast) ? 1 : 0;
            complex += isReal(fast) ? 0 : 1;
        }
    }
    EXPECT_LT(undefined, compared * 3 / 4); // or the lines would prove little
    EXPECT_GT(complex, compared / 20);
}

} // namespace
} // namespace velmora
