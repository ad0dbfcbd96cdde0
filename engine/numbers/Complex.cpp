#include "engine/numbers/Complex.h"

#include "engine/numbers/ShortNumber.h"

#include <cmath>

namespace velmora {

namespace {

std::string imaginaryText(double im, double tolerance) {
    if (std::fabs(im) < tolerance) {
        return "";
    }
    if (std::fabs(im - 1) < tolerance) {
        return "+i";
    }
    if (std::fabs(im + 1) < tolerance) {
        return "-i";
    }
    return (im > 0 ? "+" : "") + shortNumber(im) + "i"; // a NaN brings its own sign, as a negative part does
}

double withoutNegligible(double part) { return std::fabs(part) < kComplexDisplayTolerance ? 0 : part; }

} // namespace

std::unique_ptr<Complex> Complex::newComplexWithComplex(ComplexValue z) {
    return std::make_unique<Complex>(z);
}

std::unique_ptr<Complex> Complex::newComplexWithDouble(double x) { return std::make_unique<Complex>(x); }

std::string Complex::description() const {
    return descriptionWithParts(m_z.real(), m_z.imag(), kComplexDisplayTolerance);
}

std::string Complex::roundedDescription() const {
    return descriptionWithParts(withoutNegligible(m_z.real()), withoutNegligible(m_z.imag()),
                                kComplexDisplayTolerance);
}

std::string Complex::descriptionWithParts(double re, double im, double tolerance) {
    std::string imaginary = imaginaryText(im, tolerance);
    if (std::fabs(re) >= tolerance || std::isnan(re)) {
        return shortNumber(re) + imaginary;
    }
    if (imaginary.empty()) {
        return "0";
    }
    if (imaginary.front() == '+') {
        imaginary.erase(0, 1);
    }
    return imaginary;
}

Complex Complex::cubeRoot() const {
    const ComplexValue z{m_z.real(),
                         m_z.imag() + 0.0}; // −0 would give the argument −π, which is no principal one
    const double theta = std::arg(z) / 3;
    return Complex(std::exp(ComplexValue(0, theta)) * std::cbrt(std::abs(z)));
}

std::optional<Complex> Complex::nthRoot(int n) const {
    if (n != 3) {
        return std::nullopt;
    }
    return cubeRoot();
}

} // namespace velmora
