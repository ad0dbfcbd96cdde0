#include "engine/functions/UnivarTable.h"

#include "engine/display/Fraction.h"
#include "engine/functions/Hyperbolic.h"
#include "engine/functions/InverseTrigonometry.h"
#include "engine/functions/Logarithm.h"
#include "engine/functions/NormalDistribution.h"
#include "engine/functions/SpeedOfSound.h"
#include "engine/functions/StandardAtmosphere.h"
#include "engine/functions/TokenIndex.h"
#include "engine/functions/Trigonometry.h"
#include "engine/numbers/ComplexParts.h"
#include "engine/numbers/IntegerFunctions.h"
#include "engine/numbers/RandomInteger.h"
#include "engine/numbers/Roots.h"
#include "engine/numbers/Rounding.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr std::string_view kNoComplexFactorial =
    "It is possible to define the factorial of a complex number, but this calculator does not do it.";
constexpr std::string_view kNoComplexErrorFunction =
    "It is possible to define the error function of a complex argument, but this calculator does not do it.";
constexpr std::string_view kNoComplexFraction =
    "We do not try to define what it means to turn a complex number into a fraction.";
constexpr std::string_view kNoComplexRounding =
    "We do not try to define what it means to round a complex number up or down.";
constexpr std::string_view kNoComplexNormal =
    "There is a complex error function, but this calculator does not have it.";

using enum UnivarType;
constexpr AngleUse kNone = AngleUse::None;
constexpr AngleUse kTaken = AngleUse::Taken;
constexpr AngleUse kGiven = AngleUse::Given;
// Costs, by the order of what was measured; a table of exact ones would hold for one machine only.
constexpr std::uint32_t kQuick = 2;
constexpr std::uint32_t kUsual = 20;
constexpr std::uint32_t kSlow = 200;
constexpr RealInterval kEverywhere{};
constexpr RealInterval kUnitInterval{-1, 1};
constexpr RealInterval kNotNegative{.lowest = 0};
constexpr RealInterval kPositive{.lowest = std::numeric_limits<double>::denorm_min()};

// The names "??" are intended behaviour: descriptions know only some of the functions.
// clang-format off
constexpr std::array kUnivarTable{
    UnivarRow{NoFunction, "", "", "NF", kNone, kQuick, kEverywhere, nullptr, nullptr, nullptr, ""},
    UnivarRow{AbsoluteValue, "abs(", "", "abs", kNone, kQuick, kEverywhere, absoluteValue, nullptr, modulus, ""},
    UnivarRow{Sine, "sin(", "", "sin", kTaken, kUsual, kEverywhere, sine, sineOfDegrees, complexSine, ""},
    UnivarRow{Cosine, "cos(", "", "cos", kTaken, kUsual, kEverywhere, cosine, cosineOfDegrees, complexCosine, ""},
    UnivarRow{Tangent, "tan(", "", "tan", kTaken, kUsual, kEverywhere, tangent, tangentOfDegrees, complexTangent, ""},
    UnivarRow{ArcSine, "asin(", "", "??", kGiven, kUsual, kUnitInterval, arcSine, arcSineInDegrees, complexArcSine, ""},
    UnivarRow{ArcCosine, "acos(", "", "??", kGiven, kUsual, kUnitInterval, arcCosine, arcCosineInDegrees, complexArcCosine, ""},
    UnivarRow{ArcTangent, "atan(", "", "??", kGiven, kUsual, kEverywhere, arcTangent, arcTangentInDegrees, complexArcTangent, ""},
    UnivarRow{Cosecant, "csc(", "", "csc", kTaken, kUsual, kEverywhere, cosecant, cosecantOfDegrees, complexCosecant, ""},
    UnivarRow{Secant, "sec(", "", "sec", kTaken, kUsual, kEverywhere, secant, secantOfDegrees, complexSecant, ""},
    UnivarRow{Cotangent, "cot(", "", "cot", kTaken, kUsual, kEverywhere, cotangent, cotangentOfDegrees, complexCotangent, ""},
    UnivarRow{HyperbolicCosine, "cosh(", "", "??", kNone, kUsual, kEverywhere, hyperbolicCosine, nullptr, complexHyperbolicCosine, ""},
    UnivarRow{HyperbolicSine, "sinh(", "", "??", kNone, kUsual, kEverywhere, hyperbolicSine, nullptr, complexHyperbolicSine, ""},
    UnivarRow{HyperbolicTangent, "tanh(", "", "??", kNone, kUsual, kEverywhere, hyperbolicTangent, nullptr, complexHyperbolicTangent, ""},
    UnivarRow{HyperbolicCotangent, "coth(", "", "??", kNone, kUsual, kEverywhere, hyperbolicCotangent, nullptr, complexHyperbolicCotangent, ""},
    UnivarRow{HyperbolicSecant, "sech(", "", "??", kNone, kUsual, kEverywhere, hyperbolicSecant, nullptr, complexHyperbolicSecant, ""},
    UnivarRow{HyperbolicCosecant, "csch(", "", "??", kNone, kUsual, kEverywhere, hyperbolicCosecant, nullptr, complexHyperbolicCosecant, ""},
    UnivarRow{NaturalLogarithm, "ln(", "", "ln", kNone, kUsual, kPositive, naturalLogarithm, nullptr, complexNaturalLogarithm, ""},
    UnivarRow{CommonLogarithm, "log(", "", "log10", kNone, kUsual, kPositive, commonLogarithm, nullptr, complexCommonLogarithm, ""},
    UnivarRow{CubeRoot, "cbrt(", "", "cbrt", kNone, kUsual, kEverywhere, cubeRoot, nullptr, complexCubeRoot, ""},
    UnivarRow{SquareRoot, "sqrt(", "", "sqrt", kNone, kQuick, kNotNegative, squareRoot, nullptr, complexSquareRoot, ""},
    UnivarRow{Factorial, "fact(", "", "fact", kNone, kSlow, kEverywhere, factorial, nullptr, nullptr, kNoComplexFactorial},
    UnivarRow{Negation, "N", "", "N", kNone, kQuick, kEverywhere, negative, nullptr, complexNegative, ""},
    UnivarRow{Random, "rand(", "", "rand", kNone, kUsual, kEverywhere, randomInteger, nullptr, nullptr, ""},
    UnivarRow{Round, "round(", "", "round", kNone, kQuick, kEverywhere, roundToNearest, nullptr, nullptr, ""},
    UnivarRow{SpeedOfSound, "cSoundInAir(", "", "??", kNone, kUsual, kEverywhere, speedOfSoundInAir, nullptr, nullptr, ""},
    UnivarRow{AtmosphereTemperature, "ISATemp(", "", "??", kNone, kUsual, kEverywhere, atmosphereTemperature, nullptr, nullptr, ""},
    UnivarRow{AtmospherePressure, "ISAPressure(", "", "??", kNone, kUsual, kEverywhere, atmospherePressure, nullptr, nullptr, ""},
    UnivarRow{AtmosphereDensitySlugs, "ISADensitySlugsFt3(", "", "??", kNone, kUsual, kEverywhere, atmosphereDensityInSlugs, nullptr, nullptr, ""},
    UnivarRow{AtmosphereDensity, "ISADensityKgM3(", "", "??", kNone, kUsual, kEverywhere, atmosphereDensity, nullptr, nullptr, ""},
    UnivarRow{Bell, "bell(", "", "??", kNone, kUsual, kEverywhere, normalDensity, nullptr, nullptr, ""},
    UnivarRow{CumulativeNormal, "cumNormDist(", "", "??", kNone, kSlow, kEverywhere, cumulativeNormal, nullptr, nullptr, kNoComplexNormal},
    UnivarRow{UserDefined, "", "", "", kNone, kUsual, kEverywhere, nullptr, nullptr, nullptr, ""}, // named by its own token
    UnivarRow{ToFraction, "toFraction(", "", "toFraction", kNone, kSlow, kEverywhere, fractionValue, nullptr, nullptr, kNoComplexFraction},
    UnivarRow{ToMixedNumber, "toMixedNumber(", "", "??", kNone, kSlow, kEverywhere, fractionValue, nullptr, nullptr, kNoComplexFraction},
    UnivarRow{RoundUp, "roundUp(", "", "??", kNone, kQuick, kEverywhere, roundUp, nullptr, nullptr, kNoComplexRounding},
    UnivarRow{RoundDown, "roundDown(", "", "??", kNone, kQuick, kEverywhere, roundDown, nullptr, nullptr, kNoComplexRounding},
    UnivarRow{RealPart, "Re(", "re(", "??", kNone, kQuick, kEverywhere, realPartOfReal, nullptr, realPart, ""},
    UnivarRow{ImaginaryPart, "Im(", "im(", "??", kNone, kQuick, kEverywhere, imaginaryPartOfReal, nullptr, imaginaryPart, ""},
    UnivarRow{Conjugate, "conj(", "", "??", kNone, kQuick, kEverywhere, conjugateOfReal, nullptr, conjugate, ""},
    UnivarRow{Argument, "arg(", "", "??", kNone, kQuick, kEverywhere, argumentOfReal, nullptr, argument, ""},
    UnivarRow{ErrorFunction, "erf(", "", "??", kNone, kUsual, kEverywhere, errorFunction, nullptr, nullptr, kNoComplexErrorFunction},
};
// clang-format on

constexpr const UnivarRow& row(UnivarType type) { return kUnivarTable[static_cast<std::size_t>(type)]; }
static_assert(kUnivarTable.size() == static_cast<std::size_t>(ErrorFunction) + 1 &&
                  std::ranges::all_of(kUnivarTable, [](const UnivarRow& r) { return &row(r.type) == &r; }),
              "rows stand in the order of UnivarType");

constexpr auto kTokenIndex = [] {
    using Index = TokenIndex<2 * kUnivarTable.size()>;
    std::array<Index::Entry, 2 * kUnivarTable.size()> entries;
    for (std::size_t i = 0; i < kUnivarTable.size(); ++i) {
        const auto type = static_cast<std::uint8_t>(kUnivarTable[i].type);
        entries[2 * i] = {kUnivarTable[i].token, type};
        entries[2 * i + 1] = {kUnivarTable[i].otherToken, type};
    }
    return Index(entries);
}();

} // namespace

const UnivarRow& univarRow(UnivarType type) { return row(type); }

UnivarType univarTypeWithToken(std::string_view token) {
    return static_cast<UnivarType>(kTokenIndex.find(token, static_cast<std::uint8_t>(NoFunction)));
}

} // namespace velmora
