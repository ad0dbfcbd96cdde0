#include "tools/solvers/CertifiedRoots.h"

#include "engine/numbers/Complex.h"
#include "engine/numbers/ShortNumber.h"
#include "tools/solvers/RootEnclosure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

namespace velmora {

namespace {

constexpr std::size_t kShownDigits = 6; // of shortNumber
constexpr std::size_t kExactDigits = 15;
constexpr std::size_t kFirstFractionBits = 128;

/// One part of a root, with all that is asked of it decided.
struct DecidedPart {
    Enclosure enclosure;
    Decimal exact;
    Decimal shown;          ///< rounded as it should be shown
    Decimal shownFromBelow; ///< the same but for a value half-way between two such numbers
    double nearest = 0;
};

struct DecidedRoot {
    DecidedPart real;
    DecidedPart imaginary;
    int multiplicity = 1;

    ComplexValue nearest() const { return {real.nearest, imaginary.nearest}; }
};

/// Nothing while the ends of the enclosure round differently.
std::optional<DecidedPart> decided(const Enclosure& enclosure) {
    const auto& [lower, upper] = enclosure;
    DecidedPart part{enclosure, rounded(lower, kExactDigits), rounded(lower, kShownDigits),
                     rounded(lower, kShownDigits, Rounding::HalfDown), nearestDouble(lower)};
    const bool isDecided =
        enclosure.isExact() ||
        (part.exact == rounded(upper, kExactDigits) && part.shown == rounded(upper, kShownDigits) &&
         part.shownFromBelow == rounded(upper, kShownDigits, Rounding::HalfDown) &&
         part.nearest == nearestDouble(upper));
    return isDecided ? std::optional(part) : std::nullopt;
}

/// All roots, a multiple one as often as it counts; empty while any digit is undecided.
std::vector<DecidedRoot> decidedRoots(const std::vector<RootEnclosure>& enclosures) {
    std::vector<DecidedRoot> roots;
    for (const RootEnclosure& root : enclosures) {
        const auto real = decided(root.real);
        const auto imaginary = real ? decided(root.imaginary) : std::nullopt;
        if (!imaginary) {
            return {};
        }
        roots.insert(roots.end(), static_cast<std::size_t>(root.multiplicity),
                     {*real, *imaginary, root.multiplicity});
    }
    return roots;
}

double distance(ComplexValue a, ComplexValue b) {
    const double d = std::hypot(a.real() - b.real(), a.imag() - b.imag());
    return std::isnan(d) ? std::numeric_limits<double>::infinity() : d;
}

/// Which true root each of the formula's stands for.
std::vector<std::size_t> nearestMatch(const std::vector<DecidedRoot>& roots,
                                      const std::vector<ComplexValue>& formulaRoots) {
    std::vector<std::size_t> order(roots.size());
    std::iota(order.begin(), order.end(), 0);
    std::vector<std::size_t> best = order;
    double least = std::numeric_limits<double>::infinity();
    do {
        double sum = 0;
        for (std::size_t i = 0; i < order.size(); ++i) {
            sum += distance(formulaRoots[i], roots[order[i]].nearest());
        }
        if (sum < least) {
            least = sum;
            best = order;
        }
    } while (std::ranges::next_permutation(order).found);
    return best;
}

/// As roundedDescription shows it: six digits, and a part below the tolerance not at all.
bool isShownRight(double formulaPart, const DecidedPart& part) {
    if (!std::isfinite(formulaPart)) {
        return false;
    }
    const bool isLeftOut = std::fabs(formulaPart) < kComplexDisplayTolerance;
    const auto shown = decimalOfText(isLeftOut ? "0" : shortNumber(formulaPart));
    return shown == part.shown || shown == part.shownFromBelow;
}

/// An imaginary part beside 1 is shown as a bare i.
bool isImaginaryShownRight(double formulaPart, const DecidedPart& part) {
    const bool isBare = std::fabs(std::fabs(formulaPart) - 1) < kComplexDisplayTolerance;
    return isShownRight(isBare ? std::copysign(1.0, formulaPart) : formulaPart, part);
}

std::string digitsOf(const DecidedRoot& root) {
    const auto text = [](const Decimal& decimal) { return textOfDecimal(decimal, kExactDigits); };
    const Decimal& imaginary = root.imaginary.exact;
    if (imaginary.digits.empty()) {
        return text(root.real.exact);
    }
    const bool isUnit = imaginary.digits == "1" && imaginary.exponent == 0;
    const std::string size = isUnit ? (imaginary.isNegative ? "-" : "") : text(imaginary);
    if (root.real.exact.digits.empty()) {
        return size + "i";
    }
    return text(root.real.exact) + (imaginary.isNegative ? "" : "+") + size + "i";
}

/// The largest distance that the part can have from the formula's, which is finite.
Fraction largestDistance(double formulaPart, const Enclosure& enclosure) {
    const Fraction value = fractionOfDouble(formulaPart);
    const Fraction toLower = difference(value, enclosure.lower).magnitude();
    const Fraction toUpper = difference(value, enclosure.upper).magnitude();
    return compare(toLower, toUpper) < 0 ? toUpper : toLower;
}

std::string statementOf(ComplexValue formulaRoot, const DecidedRoot& root) {
    constexpr std::array multiples{"", "", ", a double root", ", a triple root"};
    const std::string multiple = multiples[static_cast<std::size_t>(root.multiplicity)];
    if (!std::isfinite(formulaRoot.real()) || !std::isfinite(formulaRoot.imag())) {
        return "the formula leaves the range of numbers here" + multiple;
    }
    // The sum of the parts is not below the length of the way.
    const Fraction bound = sum(largestDistance(formulaRoot.real(), root.real.enclosure),
                               largestDistance(formulaRoot.imag(), root.imaginary.enclosure));
    if (bound.sign() == 0) {
        return "proven exact" + multiple;
    }
    constexpr std::size_t boundDigits = 2;
    return "proven within " + textOfDecimal(rounded(bound, boundDigits, Rounding::Up), kShownDigits) +
           " of the true root" + multiple;
}

} // namespace

std::optional<std::vector<CertifiedRoot>> certifiedRoots(const std::vector<Fraction>& coefficients,
                                                         const std::vector<ComplexValue>& formulaRoots) {
    std::vector<DecidedRoot> roots;
    for (std::size_t bits = kFirstFractionBits; roots.empty() && bits <= kMostFractionBits; bits *= 2) {
        roots = decidedRoots(rootEnclosures(coefficients, bits));
    }
    if (roots.empty() || roots.size() != formulaRoots.size()) {
        return std::nullopt;
    }
    const std::vector<std::size_t> match = nearestMatch(roots, formulaRoots);
    std::vector<CertifiedRoot> certified;
    for (std::size_t i = 0; i < formulaRoots.size(); ++i) {
        const DecidedRoot& root = roots[match[i]];
        const ComplexValue formula = formulaRoots[i];
        certified.push_back({.isShownRight = isShownRight(formula.real(), root.real) &&
                                             isImaginaryShownRight(formula.imag(), root.imaginary),
                             .digits = digitsOf(root),
                             .statement = statementOf(formula, root),
                             .nearest = root.nearest()});
    }
    return certified;
}

} // namespace velmora
