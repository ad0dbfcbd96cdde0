#include "engine/Complex.h"

#include <array>
#include <charconv>
#include <cmath>

namespace velmora {

namespace {

/// The shorter of fixed and exponent notation with six significant digits, whatever the locale.
std::string generalText(double x) {
    std::array<char, 32> buffer; // longest: "-1.23457e-308"
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), x, std::chars_format::general, 6);
    return {buffer.data(), end.ptr};
}

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
    return (im > 0 ? "+" : "") + generalText(im) + "i"; // a NaN brings its own sign, as a negative part does
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
        return generalText(re) + imaginary;
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
