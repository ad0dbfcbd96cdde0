#include "engine/numbers/Roots.h"

#include "engine/numbers/DoubleDouble.h"
#include "engine/numbers/Power.h"
#include "engine/numbers/PrincipalValue.h"
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
    const double exponent = 1 / degree;
    const double root = std::pow(radicand, exponent);
    if (root == 0 || !std::isfinite(root) || !std::isfinite(degree) || !std::isfinite(exponent)) {
        return root;
    }
    // What the rounding of 1/degree takes off the exponent grows by the logarithm of the radicand.
    const DoubleDouble product = exactProduct(exponent, degree);
    const double missing = ((1 - product.high) - product.low) / degree;
    return root + root * (missing * std::log(radicand));
}

} // namespace

double squareRoot(double a) { return std::sqrt(a); }
ComplexValue complexSquareRoot(ComplexValue z) {
    if (isReal(z) && z.real() < 0) { // curves reach this at every sample left of their start
        return {0.0, std::sqrt(-z.real())};
    }
    return principalValue(std::sqrt(onPrincipalSide(z)));
}

double cubeRoot(double a) {
    const double root = std::cbrt(a);
    if (root == 0 || !std::isfinite(root)) {
        return root;
    }
    // The C library's root may be off by some last digits; one step of Newton's method, its residual
    // formed with twice the digits, mends that.
    const int exponent = std::ilogb(root); // so that no product under- or overflows
    const double scaledRoot = std::ldexp(root, -exponent);
    const DoubleDouble cube = exactProduct(scaledRoot, scaledRoot) * scaledRoot;
    const double residual = (cube - std::ldexp(a, -3 * exponent)).rounded();
    return std::ldexp(scaledRoot - residual / (3 * scaledRoot * scaledRoot), exponent);
}

ComplexValue complexCubeRoot(ComplexValue z) {
    if (z == 0.0 || !std::isfinite(std::abs(z))) {
        const double angle = std::arg(onPrincipalSide(z)) / 3;
        return principalValue(std::polar(std::cbrt(std::abs(z)), angle));
    }
    return principalPower(z, DoubleDouble(1) / 3.0);
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
    if (isReal(degree)) {
        return principalPower(radicand, DoubleDouble(1) / degree.real());
    }
    return principalPower(radicand, quotient(1.0, degree));
}

} // namespace velmora
