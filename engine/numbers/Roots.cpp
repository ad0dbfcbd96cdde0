#include "engine/numbers/Roots.h"

#include "engine/numbers/Power.h"
#include "engine/numbers/Quotient.h"

#include <cmath>
#include <limits>

namespace velmora {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

double rootOfPositive(double degree, double radicand) {
    if (degree == 2) {
        return std::sqrt(radicand);
    }
    if (degree == 3) {
        return cubeRoot(radicand);
    }
    // The rounding of 1/degree grows by the logarithm of the root, so both are formed in extended precision.
    return static_cast<double>(std::pow(Extended{radicand}, 1 / Extended{degree}));
}

} // namespace

double squareRoot(double a) { return std::sqrt(a); }
ComplexValue complexSquareRoot(ComplexValue z) {
    if (isReal(z) && z.real() < 0) { // curves reach this at every sample left of their start
        return {0.0, std::sqrt(-z.real())};
    }
    return rounded(std::sqrt(extended(z)));
}

double cubeRoot(double a) {
    const double root = std::cbrt(a);
    if (root == 0 || !std::isfinite(root)) {
        return root;
    }
    // The C library's root may be off by some last digits; one step of Newton's method, its residual
    // formed in extended precision, mends that at a fraction of the cost of an extended root.
    const Extended wide = root;
    const auto residual = static_cast<double>(wide * wide * wide - a);
    return root - residual / (3 * root * root);
}

ComplexValue complexCubeRoot(ComplexValue z) {
    const ExtendedComplex wide = extended(z);
    const Extended modulus = std::cbrt(std::abs(wide));
    const Extended angle = std::arg(wide) / 3;
    return rounded({modulus * std::cos(angle), modulus * std::sin(angle)});
}

double nthRoot(double degree, double radicand) {
    if (degree == 3) {
        return radicand == 0 ? kNaN : cubeRoot(radicand);
    }
    if (radicand == 0 || degree == 0 || std::isnan(radicand) || std::isnan(degree)) {
        return kNaN;
    }
    if (radicand > 0) {
        return rootOfPositive(degree, radicand);
    }
    const double whole = std::trunc(degree);
    const bool isOdd = std::fabs(std::fmod(whole, 2)) == 1;
    return isOdd ? -rootOfPositive(whole, -radicand) : kNaN;
}

ComplexValue complexNthRoot(ComplexValue degree, ComplexValue radicand) {
    if (isReal(degree) && isReal(radicand)) {
        return nthRoot(degree.real(), radicand.real());
    }
    if (isNaN(degree) || isNaN(radicand) || radicand == 0.0 || degree == 0.0) {
        return undefinedValue();
    }
    return principalPower(radicand, reciprocal(extended(degree)));
}

} // namespace velmora
