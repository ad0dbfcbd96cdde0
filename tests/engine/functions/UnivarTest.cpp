#include "engine/environment/Environment.h"
#include "tests/engine/ValueTable.h"

#include <numbers>
#include <string>
#include <utility>
#include <vector>

namespace velmora {
namespace {

using enum UnivarType;
using std::numbers::pi;

TEST(UnivarReal, agreesWithTheMathematicalValue) {
    // Computed with arbitrary-precision arithmetic, 60 digits, for exactly these doubles.
    struct Row {
        UnivarType function;
        std::vector<std::pair<double, double>> points; // input, value
    };
    // clang-format off
    const Row rows[] = {
        {Sine, {{1e-300, 1e-300}, {0.5, 0.479425538604203}, {3.1415926535898, -6.982962677686267e-15},
         {1e22, -0.8522008497671888}, {1.7e308, -0.5952560848632077}}},
        {Cosine, {{1.570796326795, -1.0341155355510722e-13}, {1e22, 0.523214785395139},
         {-2.0, -0.4161468365471424}}},
        {Tangent, {{1.570796326795, -9670099380792.184}, {1e-09, 1e-09},
         {1000000000000000.0, -1.672414782127583}}},
        {Cosecant, {{3.1415926535898, -143205691646534.72}, {1e-200, 1e200}, {7.0, 1.5221010625637303}}},
        {Secant, {{1.570796326795, -9670099380792.184}, {10.0, -1.1917935066878957}}},
        {Cotangent, {{1.570796326795, -1.0341155355510722e-13}, {1e-12, 1000000000000.0},
         {-4.0, -0.8636911544506166}}},
        {ArcSine, {{0.9999999999999999, 1.5707963118937354}, {1e-12, 1e-12}, {-0.7, -0.775397496610753}}},
        {ArcCosine, {{0.9999999999999999, 1.4901161193847656e-08}, {-1.0, 3.141592653589793},
         {1e-12, 1.5707963267938967}}},
        {ArcTangent, {{1e308, 1.5707963267948966}, {1e-300, 1e-300}, {-0.4375, -0.4124104415973873}}},
        {HyperbolicCosine, {{710.0, 1.1169973830808555e308}, {0.001, 1.0000005000000416},
         {-3.0, 10.067661995777765}}},
        {HyperbolicSine, {{1e-09, 1e-09}, {-710.0, -1.1169973830808555e308}, {0.3, 0.3045202934471426}}},
        {HyperbolicTangent, {{1e-09, 1e-09}, {18.0, 0.9999999999999996}, {-0.5, -0.46211715726000974}}},
        {HyperbolicCotangent, {{1e-09, 999999999.9999999}, {20.0, 1.0}, {-0.7, -1.6546216358026296}}},
        {HyperbolicSecant, {{745.0, 5e-324}, {711.0, 3.293467350449585e-309},
         {-100.0, 7.440151952041672e-44}, {1e-05, 0.99999999995}, {3.0, 0.0993279274194332}}},
        {HyperbolicCosecant, {{745.0, 5e-324}, {-711.0, -3.293467350449585e-309},
         {100.0, 7.440151952041672e-44}, {1e-09, 999999999.9999999}, {3.0, 0.09982156966882273}}},
        {NaturalLogarithm, {{5e-324, -744.4400719213812}, {1.0000000000000002, 2.2204460492503128e-16},
         {0.9999999999999999, -1.1102230246251565e-16}, {1.7e308, 709.7268368932282}}},
        {CommonLogarithm, {{1.0000000000000002, 9.64327466553287e-17}, {5e-324, -323.3062153431158},
         {2.0, 0.3010299956639812}, {1e308, 308.0}}},
        {CubeRoot, {{5e-324, 1.7031839360032603e-108}, {-2.0, -1.2599210498948732},
         {1e308, 4.641588833612779e102}}},
        {Factorial, {{0.5, 0.886226925452758}, {127.3, 1.290496029888768e214},
         {170.0, 7.257415615307999e306}, {170.5, 9.4833675668248e307}, {-0.999999, 999999.4227565685},
         {-2.5, 2.363271801207355}, {63.7, 3.6379032013684386e88}}},
        {Bell, {{0.0, 0.3989422804014327}, {1.5, 0.12951759566589172}, {-30.1, 7.300259384280611e-198},
         {37.7, 9.36931787664013e-310}, {1e-200, 0.3989422804014327}}},
        {CumulativeNormal, {{-1.0, 0.15865525393145705}, {-5.3, 5.790134039964594e-08},
         {-20.7, 1.7318518790197378e-95}, {-37.1, 1.4047119663106221e-301}, {6.5, 0.99999999995984},
         {1e-20, 0.5}}},
        {ErrorFunction, {{1e-300, 1.1283791670955126e-300}, {0.5, 0.5204998778130465},
         {-2.7, -0.9998656672600594}, {5.9, 0.9999999999999999}}},
    };
    // clang-format on
    for (const Row& row : rows) {
        for (const auto& [input, value] : row.points) {
            EXPECT_LE(ulpDistance(UnivarFunction(row.function).valueWithDouble(input), value), 4)
                << univarRow(row.function).token << input;
        }
    }
}

TEST(UnivarReal, isExactWhereUsersCheck) {
    // clang-format off
    const UnivarCase cases[] = {
        {AbsoluteValue, -3.5, 3.5}, {HyperbolicTangent, 1000, 1}, {HyperbolicTangent, -1000, -1},
        {HyperbolicCotangent, 1000, 1}, {HyperbolicSecant, 1000, 0}, {HyperbolicCosecant, -1000, 0},
        {HyperbolicCosine, 1000, kInfinity}, {HyperbolicSine, -1000, -kInfinity},
        {CommonLogarithm, 1000, 3}, {CommonLogarithm, 1e-5, -5},
        {NaturalLogarithm, 1, 0}, {NaturalLogarithm, 0, -kInfinity}, {CommonLogarithm, -0.0, -kInfinity},
        {CubeRoot, -27, -3}, {CubeRoot, 1e-300, 1e-100}, {SquareRoot, 0, 0}, {Factorial, 4, 24},
        {Factorial, 0, 1}, {Factorial, 171, kInfinity},
        {Negation, 2, -2}, {Round, 2.5, 3}, {Round, -2.5, -3}, {Round, 0.49999999999999994, 0},
        {RoundUp, 2.5, 3}, {RoundUp, 2.4, 3}, {RoundUp, -2.5, -2}, {RoundUp, 3, 3},
        {RoundDown, 2.5, 2}, {RoundDown, 2.6, 2}, {RoundDown, -2.4, -3},
        {RoundDown, 2251799813685249.5, 2251799813685249}, {RealPart, -2, -2}, {ImaginaryPart, -2, 0},
        {Conjugate, -2, -2},
        {Argument, 5, 0}, {Argument, 0, 0}, {Argument, -0.0, 0}, {Argument, -5, pi},
        {Argument, -kInfinity, pi},
        {CumulativeNormal, 0, 0.5}, {CumulativeNormal, -kInfinity, 0}, {CumulativeNormal, kInfinity, 1},
        {Bell, kInfinity, 0}, {SpeedOfSound, -273.15, 0}, {Cosecant, 0, kNaN}, {Cosecant, -0.0, kNaN},
        {Cotangent, 0, kNaN}, {HyperbolicCotangent, 0, kNaN}, {HyperbolicCosecant, 0, kNaN},
        {Sine, kInfinity, kNaN}, {Factorial, -3, kNaN}, {Factorial, -1, kNaN},
        {SpeedOfSound, -273.16, kNaN}, {SpeedOfSound, 1000000.5, kNaN}, {Random, kInfinity, kNaN},
        {ToFraction, 0.333333, 1.0 / 3}, {ToMixedNumber, 2.666667, 8.0 / 3},
    };
    // clang-format on
    expectValues(cases, 0);
    double factorial = 1;
    for (int n = 1; n <= 22; ++n) { // 22! is the last that a double holds
        factorial *= n;
        EXPECT_EQ(univarRow(Factorial).real(n), factorial);
    }
    for (int exponent = -307; exponent <= 308; ++exponent) { // log( of every power of ten is whole
        const double power = std::stod("1e" + std::to_string(exponent));
        EXPECT_EQ(univarRow(CommonLogarithm).real(power), exponent);
    }
}

TEST(UnivarReal, passesNaNThrough) {
    for (int type = 1; type <= 41; ++type) {
        const auto function = static_cast<UnivarType>(type);
        if (function == UserDefined) {
            continue; // its rule is the user's own equation
        }
        const ComplexValue value = UnivarFunction(function).valueWithComplex(undefinedValue());
        EXPECT_TRUE(std::isnan(value.real()) && value.imag() == 0) << univarRow(function).token << value;
    }
}

/// Degrees in force for as long as it lives.
struct Degrees {
    Degrees() { environment.setAngleMode(AngleMode::Degrees); }
    PlainEnvironment environment;
    EnvironmentScope scope{environment};
};

TEST(UnivarInDegrees, isExactAtQuarterTurns) {
    const Degrees degreesInForce;
    struct Row {
        UnivarType function;
        double at[4]; // 0°, 90°, 180°, 270°
    };
    const Row rows[] = {
        {Sine, {0, 1, 0, -1}},           {Cosine, {1, 0, -1, 0}},       {Tangent, {0, kNaN, 0, kNaN}},
        {Cosecant, {kNaN, 1, kNaN, -1}}, {Secant, {1, kNaN, -1, kNaN}}, {Cotangent, {kNaN, 0, kNaN, 0}},
    };
    for (const Row& row : rows) {
        for (int quarter = 0; quarter < 4; ++quarter) {
            for (const double turns : {0.0, -1.0, -7.0, 3.0, 1e12}) {
                const double degrees = 90 * quarter + 360 * turns;
                const double value = UnivarFunction(row.function).valueWithDouble(degrees);
                EXPECT_EQ(ulpDistance(value, row.at[quarter]), 0) << univarRow(row.function).token << degrees;
            }
        }
    }
}

TEST(UnivarInDegrees, convertsAngles) {
    const Degrees degreesInForce;
    // clang-format off
    const UnivarCase taken[] = {
        {Sine, 30, 0.5}, {Cosine, 60, 0.5}, {Tangent, 45, 1}, {Cosecant, 30, 2}, {Secant, 60, 2},
        {Cotangent, 45, 1}, {Sine, {0, 180}, {0, 11.548739357257748}}, // sinh(π)
    };
    expectValues(taken, 4);
    const UnivarCase given[] = {
        {ArcSine, 1, 90}, {ArcSine, 0.5, 30}, {ArcSine, -0.5, -30}, {ArcCosine, 0.5, 60},
        {ArcCosine, -1, 180}, {ArcTangent, 1, 45}, {ArcTangent, kInfinity, 90},
        {ArcSine, 2, {90, 75.4561292902169}}, // 180/π · arcosh(2)
    };
    // clang-format on
    expectValues(given, 0);
}

TEST(UnivarComplex, takesPrincipalValues) {
    // Computed with arbitrary-precision arithmetic, 60 digits, for exactly these doubles.
    // clang-format off
    const UnivarCase cases[] = {
        {Sine, {1.0, 2.0}, {3.165778513216168, 1.9596010414216058}},
        {Sine, {3.0, -700.0}, {7.156421786938977e302, 5.0204106199965336e303}},
        {Cosine, {1.0, 2.0}, {2.0327230070196656, -3.0518977991518}}, {Cosine, {1e-09, 1e-09}, {1.0, -1e-18}},
        {Tangent, {1.0, 2.0}, {0.03381282607989669, 1.0147936161466335}},
        {Tangent, {1.5707963267948966, 1e-09}, {61.23233995736742, 999999999.9999962}},
        {Tangent, {2.0, 400.0}, {0.0, 1.0}},
        {ArcSine, {1.0, 2.0}, {0.42707858639247614, 1.5285709194809982}},
        {ArcSine, {1.0, 1e-10}, {1.5707863267948967, 1.0000000000083334e-05}},
        {ArcSine, {1e150, -1e150}, {0.7853981633974483, -346.4274847199468}},
        {ArcCosine, {1.0, 2.0}, {1.1437177404024206, -1.5285709194809982}},
        {ArcCosine, {1.0, 1e-10}, {9.999999999916666e-06, -1.0000000000083334e-05}},
        {ArcTangent, {1.0, 2.0}, {1.3389725222944935, 0.40235947810852507}},
        {ArcTangent, {1e-10, 1.0}, {0.7853981634224483, 11.8594990552502}},
        {Cosecant, {1.0, 2.0}, {0.2283750655996866, -0.1413630216124078}},
        {Cosecant, {1.0, -700.0}, {1.6593263462329704e-304, 1.065441194341483e-304}},
        {Secant, {1.0, 2.0}, {0.1511762982655772, 0.2269736753937216}},
        {Cotangent, {1.0, 2.0}, {0.032797755533752596, -0.984329226458191}},
        {Cotangent, {2.0, 400.0}, {0.0, -1.0}},
        {HyperbolicCosine, {1.0, 2.0}, {-0.64214812471552, 1.0686074213827783}},
        {HyperbolicCosine, {-700.0, 1.0}, {2.7399595892935213e303, -4.2672342296080034e303}},
        {HyperbolicSine, {1.0, 2.0}, {-0.4890562590412937, 1.4031192506220407}},
        {HyperbolicTangent, {1.0, 2.0}, {1.16673625724092, -0.24345820118572525}},
        {HyperbolicTangent, {0.1, 1.5707963267948966}, {10.033311132253989, 6.1028639726054175e-15}},
        {HyperbolicCotangent, {1.0, 2.0}, {0.8213297974938517, 0.17138361290918502}},
        {HyperbolicSecant, {1.0, 2.0}, {-0.41314934426694, -0.6875274386554789}},
        {HyperbolicSecant, {-700.0, 1.0}, {1.065441194341483e-304, 1.6593263462329704e-304}},
        {HyperbolicCosecant, {1.0, 2.0}, {-0.2215009308505094, -0.6354937992538999}},
        {NaturalLogarithm, {1.0, 2.0}, {0.8047189562170501, 1.1071487177940904}},
        {NaturalLogarithm, {0.6, 0.8}, {2.2204460492503132e-17, 0.9272952180016123}},
        {NaturalLogarithm, {-1e-310, 1e-310}, {-713.4548052378742, 2.356194490192345}},
        {CommonLogarithm, {1.0, 2.0}, {0.34948500216800943, 0.48082857878423413}},
        {CommonLogarithm, {-1000.0, 1e-09}, {3.0, 1.364376353841407}},
        {CubeRoot, {1.0, 2.0}, {1.2196165079717576, 0.471711267789389}},
        {CubeRoot, {-8.0, -1e-20}, {1.0, -1.7320508075688772}},
        {SquareRoot, {1.0, 2.0}, {1.272019649514069, 0.7861513777574233}},
        {SquareRoot, {-4.0, -1e-20}, {2.5e-21, -2.0}},
        {SquareRoot, {1e300, 1e300}, {1.09868411346781e150, 4.550898605622274e149}},
    };
    // clang-format on
    expectValues(cases, 3);
}

TEST(UnivarComplex, leavesTheRealLineOnItsUpperSide) {
    const double arcCosh2 = 1.3169578969248167086; // ln(2 + √3)
    // clang-format off
    const UnivarCase cases[] = {
        {SquareRoot, -4, {0, 2}}, {SquareRoot, -kInfinity, {0, kInfinity}},
        {NaturalLogarithm, -1, {0, pi}}, {NaturalLogarithm, 0, -kInfinity},
        {CommonLogarithm, -1000, {3, pi / std::numbers::ln10}},
        {ArcSine, 2, {pi / 2, arcCosh2}}, {ArcSine, -2, {-pi / 2, arcCosh2}},
        {ArcCosine, 2, {0, -arcCosh2}}, {ArcCosine, -2, {pi, -arcCosh2}},
    };
    // clang-format on
    expectValues(cases, 2);
    for (const UnivarCase& c : cases) {
        const UnivarCase belowTheCut{c.function, {c.input.real(), -0.0}, c.value}; // the same real number
        EXPECT_EQ(belowTheCut.computed(), c.computed()) << c;
    }
}

TEST(UnivarComplex, staysFiniteWhereTheValueIs) {
    // clang-format off
    const UnivarCase cases[] = {
        {HyperbolicTangent, {1000, 1}, 1}, {HyperbolicTangent, {-1000, 1}, -1},
        {HyperbolicCotangent, {1000, 1}, 1},
        {HyperbolicSecant, {1000, 1}, 0},
        {HyperbolicSecant, {20000, 1}, 0}, // where even the widest type overflows
        {HyperbolicCosecant, {-1000, 1}, 0}, {Tangent, {1, 1000}, {0, 1}}, {Tangent, {1, 20000}, {0, 1}},
        {Cotangent, {1, 1000}, {0, -1}}, {Secant, {1, 1000}, 0}, {Cosecant, {1, -1000}, 0},
        {AbsoluteValue, {3e307, -4e307}, 5e307}, {AbsoluteValue, {3, 4}, 5},
        {NaturalLogarithm, {1.7e308, 1.7e308}, {709.7268368932282 + std::numbers::ln2 / 2, pi / 4}},
        // parts of a number
        {RealPart, {3, -4}, 3}, {ImaginaryPart, {3, -4}, -4}, {Conjugate, {3, -4}, {3, 4}},
        {Argument, {0, 2}, pi / 2}, {Argument, {-1, -1}, -3 * pi / 4}, {Negation, {3, -4}, {-3, 4}},
        {CubeRoot, {0, 27}, {1.5 * std::numbers::sqrt3, 1.5}},
    };
    // clang-format on
    expectValues(cases, 1);
}

TEST(UnivarComplex, inversesUndoTheirFunctions) {
    const UnivarType pairs[][2] = {{Sine, ArcSine}, {Cosine, ArcCosine}, {Tangent, ArcTangent}};
    for (const auto& [function, inverse] : pairs) {
        for (const double re : {-40.0, -1.0, -1e-9, 1e-9, 0.5, 1.0, 7.0}) {
            for (const double im : {-30.0, -1.0, -1e-6, 1e-6, 0.9, 12.0}) {
                const ComplexValue z{re, im};
                const ComplexValue there = UnivarFunction(inverse).valueWithComplex(z);
                const ComplexValue back = UnivarFunction(function).valueWithComplex(there);
                EXPECT_LE(std::abs(back - z), 1e-14 * (1 + std::norm(z))) << univarRow(inverse).token << z;
            }
        }
    }
}

TEST(UnivarTokens, selectTheirType) {
    struct Row {
        const char* token;
        int type;
        const char* name = "??"; // what descriptions call most of them
    };
    // clang-format off
    const Row rows[] = {
        {"abs(", 1, "abs"}, {"sin(", 2, "sin"}, {"cos(", 3, "cos"}, {"tan(", 4, "tan"}, {"asin(", 5},
        {"acos(", 6}, {"atan(", 7}, {"csc(", 8, "csc"}, {"sec(", 9, "sec"}, {"cot(", 10, "cot"},
        {"cosh(", 11}, {"sinh(", 12}, {"tanh(", 13}, {"coth(", 14}, {"sech(", 15}, {"csch(", 16},
        {"ln(", 17, "ln"}, {"log(", 18, "log10"}, {"cbrt(", 19, "cbrt"}, {"sqrt(", 20, "sqrt"},
        {"fact(", 21, "fact"}, {"N", 22, "N"}, {"rand(", 23, "rand"}, {"round(", 24, "round"},
        {"cSoundInAir(", 25}, {"ISATemp(", 26}, {"ISAPressure(", 27}, {"ISADensitySlugsFt3(", 28},
        {"ISADensityKgM3(", 29}, {"bell(", 30}, {"cumNormDist(", 31}, {"toFraction(", 33, "toFraction"},
        {"toMixedNumber(", 34}, {"roundUp(", 35}, {"roundDown(", 36}, {"Re(", 37}, {"re(", 37}, {"Im(", 38},
        {"im(", 38}, {"conj(", 39}, {"arg(", 40}, {"erf(", 41}, {"", 0, "NF"}, {"(", 0, "NF"}, {"x", 0, "NF"},
        {"sin", 0, "NF"}, {"sin(x", 0, "NF"}, {"SIN(", 0, "NF"}, {"θ", 0, "NF"}, {"y1(", 0, "NF"},
        {"n", 0, "NF"}, {"NN", 0, "NF"}, {"N(", 0, "NF"}, {"ISATemp", 0, "NF"}, {"@k1", 0, "NF"},
        {"+", 0, "NF"}, {"gcd(", 0, "NF"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const UnivarType type = univarTypeWithToken(row.token);
        EXPECT_EQ(static_cast<int>(type), row.type) << row.token;
        EXPECT_EQ(univarRow(type).name, row.name) << row.token;
    }
}

} // namespace
} // namespace velmora
