#pragma once

#include "engine/numbers/ComplexValue.h"

#include <cstdint>
#include <limits>
#include <string_view>

namespace velmora {

/// The functions of one input, numbered as they are listed for users of saved files and tests.
enum class UnivarType : unsigned char {
    NoFunction = 0,
    AbsoluteValue = 1,
    Sine = 2,
    Cosine = 3,
    Tangent = 4,
    ArcSine = 5,
    ArcCosine = 6,
    ArcTangent = 7,
    Cosecant = 8,
    Secant = 9,
    Cotangent = 10,
    HyperbolicCosine = 11,
    HyperbolicSine = 12,
    HyperbolicTangent = 13,
    HyperbolicCotangent = 14,
    HyperbolicSecant = 15,
    HyperbolicCosecant = 16,
    NaturalLogarithm = 17,
    CommonLogarithm = 18,
    CubeRoot = 19,
    SquareRoot = 20,
    Factorial = 21,
    Negation = 22,
    Random = 23,
    Round = 24,
    SpeedOfSound = 25,
    AtmosphereTemperature = 26,
    AtmospherePressure = 27,
    AtmosphereDensitySlugs = 28,
    AtmosphereDensity = 29,
    Bell = 30,
    CumulativeNormal = 31,
    UserDefined = 32,
    ToFraction = 33,
    ToMixedNumber = 34,
    RoundUp = 35,
    RoundDown = 36,
    RealPart = 37,
    ImaginaryPart = 38,
    Conjugate = 39,
    Argument = 40,
    ErrorFunction = 41,
};

/// Which side of a function is an angle and follows the angle mode.
enum class AngleUse : unsigned char { None, Taken, Given };

/// The real inputs for which a real rule holds, both ends included. NaN counts as inside: it stays real.
struct RealInterval {
    double lowest = -std::numeric_limits<double>::infinity();
    double highest = std::numeric_limits<double>::infinity();

    constexpr bool contains(double a) const { return !(a < lowest) && !(a > highest); }
};

/// One function of one input. A function pointer that is null means: no such rule.
struct UnivarRow {
    UnivarType type;
    std::string_view token;      ///< what the key inserts; empty when no fixed token selects the type
    std::string_view otherToken; ///< a second spelling, or empty
    std::string_view name;       ///< how a tree describes the node
    AngleUse angle;
    std::uint32_t cost;                    ///< of one value, in steps of arithmetic (EvaluationBudget)
    RealInterval realDomain;               ///< where `real` holds
    double (*real)(double);                ///< the real rule; angles in radians
    double (*realInDegrees)(double);       ///< the real rule in degree mode; null where angle is None
    ComplexValue (*complex)(ComplexValue); ///< the principal branch; angles in radians
    std::string_view complexMessage; ///< raised once when a complex input meets no complex rule, or empty
};

/// The row of a type; every type has one.
const UnivarRow& univarRow(UnivarType type);

/// The type that a token selects by its whole text, NoFunction when none does.
/// User functions ("y1(") are not known here, for they depend on the equations.
UnivarType univarTypeWithToken(std::string_view token);

} // namespace velmora
