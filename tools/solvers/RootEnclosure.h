#pragma once

#include "tools/exact/Fraction.h"

#include <cstddef>
#include <vector>

namespace velmora {

/// A real number that is known to lie between two fractions, the ends included. With equal ends it is exact.
struct Enclosure {
    Fraction lower;
    Fraction upper;

    bool isExact() const { return compare(lower, upper) == 0; }
};

/// A root of a polynomial, by its parts.
struct RootEnclosure {
    Enclosure real;
    Enclosure imaginary;
    int multiplicity = 1;
};

/// The most significant digits of fractionBits for which it is sensible to ask; see rootEnclosures.
inline constexpr std::size_t kMostFractionBits = 1 << 15;

/// Proven enclosures of all roots, each once, of a polynomial of degree 1 to 3 with real coefficients, the
/// constant term first, the leading one not 0. More fraction bits give narrower ones; empty when they are too
/// few to tell the roots apart. A part that is a rational number is exact at once, so whatever remains can be
/// decided by asking for twice as many bits, again and again.
///
/// All is done in whole numbers, so the proof is that of exact arithmetic: the kinds of roots follow from the
/// sign of the discriminant, a real root lies where the polynomial changes its sign (Bolzano), and complex
/// ones follow from the real one by Vieta's formulas.
std::vector<RootEnclosure> rootEnclosures(const std::vector<Fraction>& coefficients,
                                          std::size_t fractionBits);

} // namespace velmora
