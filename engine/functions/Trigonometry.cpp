#include "engine/functions/Trigonometry.h"

#include "engine/numbers/Quotient.h"

#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>

namespace velmora {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

double radians(double degrees) { return degrees * (std::numbers::pi / 180); }

/// 0 to 3 for an exact multiple of 90°, counted round the circle; nothing for every other angle.
std::optional<std::size_t> quarterTurns(double degrees) {
    if (std::fmod(degrees, 90) != 0) { // NaN too
        return std::nullopt;
    }
    return static_cast<std::size_t>(4 + std::fmod(degrees, 360) / 90) % 4;
}

} // namespace

double sine(double a) { return std::sin(a); }
double cosine(double a) { return std::cos(a); }
double tangent(double a) { return std::tan(a); }
double cosecant(double a) { return reciprocal(std::sin(a)); }
double secant(double a) { return reciprocal(std::cos(a)); }
double cotangent(double a) { return reciprocal(std::tan(a)); }

double sineOfDegrees(double degrees) {
    constexpr std::array kValues{0.0, 1.0, 0.0, -1.0};
    const auto turns = quarterTurns(degrees);
    return turns ? kValues[*turns] : std::sin(radians(degrees));
}

double cosineOfDegrees(double degrees) {
    constexpr std::array kValues{1.0, 0.0, -1.0, 0.0};
    const auto turns = quarterTurns(degrees);
    return turns ? kValues[*turns] : std::cos(radians(degrees));
}

double tangentOfDegrees(double degrees) {
    constexpr std::array kValues{0.0, kNaN, 0.0, kNaN};
    const auto turns = quarterTurns(degrees);
    return turns ? kValues[*turns] : std::tan(radians(degrees));
}

double cosecantOfDegrees(double degrees) { return reciprocal(sineOfDegrees(degrees)); }
double secantOfDegrees(double degrees) { return reciprocal(cosineOfDegrees(degrees)); }

double cotangentOfDegrees(double degrees) {
    constexpr std::array kValues{kNaN, 0.0, kNaN, 0.0}; // not 1/tan, which is undefined at 90°
    const auto turns = quarterTurns(degrees);
    return turns ? kValues[*turns] : reciprocal(std::tan(radians(degrees)));
}

ComplexValue complexSine(ComplexValue z) { return rounded(std::sin(extended(z))); }
ComplexValue complexCosine(ComplexValue z) { return rounded(std::cos(extended(z))); }
ComplexValue complexTangent(ComplexValue z) { return rounded(std::tan(extended(z))); }
ComplexValue complexCosecant(ComplexValue z) { return rounded(reciprocal(std::sin(extended(z)))); }
ComplexValue complexSecant(ComplexValue z) { return rounded(reciprocal(std::cos(extended(z)))); }
ComplexValue complexCotangent(ComplexValue z) { return rounded(reciprocal(std::tan(extended(z)))); }

} // namespace velmora
