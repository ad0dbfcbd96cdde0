#include "tests/engine/SpecialNumbers.h"
#include "tests/engine/TokenLine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace velmora {
namespace {

/// The line's value as a result, on a curve and for a complex variable; they must be the same.
double valueEverywhere(const std::string& line, double x) {
    const auto tree = parsed(line);
    const double onCurve = tree->valueWithVariableValue(x).real();
    const double ofTwo = tree->valueWithVariableValues(x, ComplexValue(0, 1)).real(); // no real program
    EXPECT_TRUE(onCurve == ofTwo || (std::isnan(onCurve) && std::isnan(ofTwo))) << line << " at " << x;
    EXPECT_FALSE(onCurve == 0 && std::signbit(onCurve)) << line << " at " << x;
    return onCurve;
}

void expectFunctions(double x, double sine, double cosine) {
    const auto quotient = [](double a, double b) { return b == 0 ? kNaN : a / b; };
    const std::pair<const char*, double> rows[] = {
        {"sin( x )", sine},
        {"cos( x )", cosine},
        {"tan( x )", quotient(sine, cosine)},
        {"csc( x )", quotient(1, sine)},
        {"sec( x )", quotient(1, cosine)},
        {"cot( x )", quotient(cosine, sine)},
    };
    for (const auto& [line, expected] : rows) {
        const double value = valueEverywhere(line, x);
        EXPECT_TRUE(value == expected || (std::isnan(value) && std::isnan(expected)))
            << line << " at " << x << " is " << value;
    }
}

TEST(ExactAngles, multiplesOfAQuarterTurnInRadians) {
    constexpr double kHalfPi = std::numbers::pi / 2;
    struct Row {
        double angle;
        double sine;
        double cosine;
    };
    const Row rows[] = {
        {kHalfPi, 1, 0},
        {std::numbers::pi, 0, -1},
        {3 * kHalfPi, -1, 0},
        {-kHalfPi, -1, 0},
        {std::nextafter(std::numbers::pi, 4), 0, -1}, // the other neighbour of the true number
        {1e6 * kHalfPi, 0, 1},
        {999'999 * kHalfPi, -1, 0},
    };
    for (const Row& row : rows) {
        expectFunctions(row.angle, row.sine, row.cosine);
    }
    EXPECT_EQ(shown("sin( π )"), "0");
    EXPECT_EQ(shown("1 / cos( π / 2 )"), "Undefined");
    // What is no such multiple keeps its value: a neighbour, and what lies too far out.
    for (const double angle : {std::numbers::pi + 1e-15, 3.1415926535898, 1'000'001 * kHalfPi, 1e-300}) {
        EXPECT_EQ(valueEverywhere("sin( x )", angle), std::sin(angle));
        EXPECT_EQ(valueEverywhere("cos( x )", angle), std::cos(angle));
        EXPECT_EQ(valueEverywhere("tan( x )", angle), std::tan(angle));
    }
}

TEST(ExactAngles, rationalValuesInDegrees) {
    PlainEnvironment environment;
    environment.setAngleMode(AngleMode::Degrees);
    const EnvironmentScope scope(environment);
    struct Row {
        double angle;
        double sine;
        double cosine;
    };
    const double largest = 360 * std::ldexp(1.0, 1000);
    const Row rows[] = {{0, 0, 1}, {90, 1, 0}, {180, 0, -1}, {270, -1, 0}, {-90, -1, 0}, {largest, 0, 1}};
    for (const Row& row : rows) {
        expectFunctions(row.angle, row.sine, row.cosine);
    }
    for (const double turn : {0.0, 360.0, -720.0, 3.6e15}) {
        for (const double angle : {30.0, 150.0}) {
            EXPECT_EQ(valueEverywhere("sin( x )", turn + angle), 0.5) << turn + angle;
            EXPECT_EQ(valueEverywhere("csc( x )", turn - angle), -2) << turn - angle;
        }
        for (const double angle : {60.0, 300.0}) {
            EXPECT_EQ(valueEverywhere("cos( x )", turn + angle), 0.5) << turn + angle;
            EXPECT_EQ(valueEverywhere("sec( x )", turn + angle + 180), -2) << turn + angle;
        }
        for (const double angle : {45.0, 225.0}) {
            EXPECT_EQ(valueEverywhere("tan( x )", turn + angle), 1) << turn + angle;
            EXPECT_EQ(valueEverywhere("cot( x )", turn - angle), -1) << turn - angle;
        }
    }
    // Reduced before it is converted: sin of a millionth of a degree, computed with 40 digits
    EXPECT_DOUBLE_EQ(valueEverywhere("sin( x )", 180 + std::ldexp(1.0, -20)), -1.664475681299524e-08);
}

} // namespace
} // namespace velmora
