#include "tests/engine/ValueTable.h"

#include <numbers>

namespace velmora {
namespace {

using enum UnivarType;
using std::numbers::pi;

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

} // namespace
} // namespace velmora
