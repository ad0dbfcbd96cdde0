#pragma once

#include "engine/numbers/ComplexValue.h"

#include <memory>
#include <optional>
#include <string>

namespace velmora {

/// A complex value as an object, for collections, messages between screens and the polynomial solvers.
class Complex {
public:
    explicit Complex(ComplexValue z) : m_z(z) {}

    static std::unique_ptr<Complex> newComplexWithComplex(ComplexValue z);
    /// The real number x.
    static std::unique_ptr<Complex> newComplexWithDouble(double x);

    ComplexValue z() const { return m_z; }
    void setZ(ComplexValue z) { m_z = z; }

    /// Both parts are exactly 0.
    bool isZero() const { return m_z.real() == 0 && m_z.imag() == 0; }

    /// The text of both parts, such as "3+2i"; parts within the display tolerance of 0 are left out.
    std::string description() const;
    /// The same of the value whose parts below the display tolerance are exactly 0.
    std::string roundedDescription() const;
    /// Six significant digits a part. An imaginary part within the tolerance of 0 is left out, of ±1 is a
    /// bare i.
    static std::string descriptionWithParts(double re, double im, double tolerance);

    /// The principal cube root, with an argument in (−π/3, π/3]: of −8 it is 1 + 1.732…i, not −2, which the
    /// cubic solver relies on. A minus zero in the imaginary part counts as zero.
    Complex cubeRoot() const;
    /// Only the cube root (n = 3) is provided; nothing for every other degree.
    std::optional<Complex> nthRoot(int n) const;

private:
    ComplexValue m_z;
};

} // namespace velmora
