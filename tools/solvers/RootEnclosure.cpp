#include "tools/solvers/RootEnclosure.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace velmora {

namespace {

/// lower ≤ value · 2^bits ≤ upper.
struct Scaled {
    BigInteger lower;
    BigInteger upper;
    std::size_t bits = 0;
};

Scaled exactly(BigInteger value) { return {value, value, 0}; }

Scaled squareRoot(const Scaled& square) {
    const BigInteger lower = square.lower.squareRoot();
    const BigInteger upper = square.upper.squareRoot();
    const bool upperIsExact = upper * upper == square.upper;
    return {lower, upperIsExact ? upper : upper + 1, square.bits / 2};
}

/// The root of a whole number; exact where it is whole, for others to that many bits.
Scaled squareRootOf(const BigInteger& number, std::size_t bits) {
    const BigInteger root = number.squareRoot();
    return root * root == number ? exactly(root)
                                 : squareRoot({number << (2 * bits), number << (2 * bits), 2 * bits});
}

/// (value + shift) / divisor, where the divisor may be negative.
Enclosure shiftedAndDivided(const Scaled& value, const BigInteger& shift, const BigInteger& divisor) {
    const BigInteger offset = shift << value.bits;
    const BigInteger scale = divisor << value.bits;
    Enclosure result{quotientOf(value.lower + offset, scale), quotientOf(value.upper + offset, scale)};
    if (divisor.isNegative()) {
        std::swap(result.lower, result.upper);
    }
    return result;
}

Scaled negative(const Scaled& value) { return {-value.upper, -value.lower, value.bits}; }

/// The roots of a quadratic as (shift ± root of square) / divisor.
std::vector<RootEnclosure> quadraticRoots(const BigInteger& shift, const BigInteger& square,
                                          const BigInteger& divisor, std::size_t bits) {
    const Enclosure centre = shiftedAndDivided(exactly(0), shift, divisor);
    const Enclosure nothing{};
    const int kind = square.sign();
    if (kind == 0) {
        return {{centre, nothing, 2}};
    }
    const Scaled root = squareRootOf(square.magnitude(), bits);
    if (kind > 0) {
        return {{shiftedAndDivided(root, shift, divisor), nothing},
                {shiftedAndDivided(negative(root), shift, divisor), nothing}};
    }
    const BigInteger size = divisor.magnitude();
    return {{centre, shiftedAndDivided(root, 0, size)}, {centre, shiftedAndDivided(negative(root), 0, size)}};
}

/// y³ + p y + q in whole numbers, to which every cubic comes by y = 3 a x + b.
class DepressedCubic {
public:
    DepressedCubic(BigInteger p, BigInteger q) : m_p(std::move(p)), m_q(std::move(q)) {}

    const BigInteger& p() const { return m_p; }
    const BigInteger& q() const { return m_q; }
    BigInteger discriminant() const { return BigInteger(-4) * m_p * m_p * m_p - BigInteger(27) * m_q * m_q; }
    /// The value at y / 2^bits, times 8^bits.
    BigInteger valueAt(const BigInteger& y, std::size_t bits) const {
        return (y * y + (m_p << (2 * bits))) * y + (m_q << (3 * bits));
    }
    BigInteger slopeAt(const BigInteger& y, std::size_t bits) const {
        return BigInteger(3) * y * y + (m_p << (2 * bits));
    }
    /// A whole number that no root exceeds in size (Fujiwara's bound, rounded up to a power of two).
    BigInteger bound() const {
        const std::size_t length = std::max(m_p.bitLength() / 2, m_q.bitLength() / 3) + 2;
        return BigInteger(1) << length;
    }

private:
    BigInteger m_p;
    BigInteger m_q;
};

/// Where a cubic changes its sign once.
struct Bracket {
    BigInteger lower;
    BigInteger upper;
    BigInteger start; ///< from here Newton's steps go to the root without turning
};

/// The root in the bracket, of ends whose values have different signs. Newton's steps find where it is; that
/// it is there is shown by the signs beside it.
Scaled rootInBracket(const DepressedCubic& cubic, Bracket bracket, std::size_t bits) {
    const int signAtLower = cubic.valueAt(bracket.lower, bits).sign();
    BigInteger y = bracket.start;
    for (;;) {
        const BigInteger slope = cubic.slopeAt(y, bits);
        if (slope.isZero()) {
            break;
        }
        const BigInteger step = BigInteger::divide(cubic.valueAt(y, bits), slope).quotient;
        y -= step;
        if (step.magnitude() <= 1) {
            break;
        }
    }
    // What rounding has left of the way is a few units.
    for (BigInteger reach = 1; reach < bracket.upper - bracket.lower; reach = reach << 2) {
        const BigInteger below = std::max(y - reach, bracket.lower);
        const BigInteger above = std::min(y + reach, bracket.upper);
        if (below < above && cubic.valueAt(below, bits).sign() == signAtLower &&
            cubic.valueAt(above, bits).sign() == -signAtLower) {
            return {below, above, bits};
        }
    }
    return {bracket.lower, bracket.upper, bits};
}

/// The brackets of the real roots; empty when the roots are nearer to each other than the grid of 2^-bits.
std::vector<Bracket> brackets(const DepressedCubic& cubic, std::size_t bits) {
    const BigInteger bound = cubic.bound() << bits;
    const auto sign = [&](const BigInteger& y) { return cubic.valueAt(y, bits).sign(); };
    if (cubic.discriminant().sign() < 0) {
        // One real root, on the side where the constant term sends it; beyond it the curve bends away.
        const BigInteger far = cubic.q().isNegative() ? bound : -bound;
        return {{-bound, bound, far}};
    }
    // Three, parted by the extrema at ±√(−p/3).
    const BigInteger extremum = BigInteger::floorQuotient(-cubic.p() << (2 * bits), 3).squareRoot();
    const BigInteger far = (extremum + 1) << 1;
    if (extremum.isZero() || sign(-far) >= 0 || sign(-extremum) <= 0 || sign(extremum) >= 0 ||
        sign(far) <= 0) {
        return {};
    }
    return {{-far, -extremum, -far}, {-extremum, extremum, 0}, {extremum, far, far}};
}

/// A whole root within an enclosure, if it holds one.
std::optional<BigInteger> wholeRootIn(const DepressedCubic& cubic, const Scaled& enclosure) {
    const BigInteger whole = BigInteger::floorQuotient(enclosure.upper, BigInteger(1) << enclosure.bits);
    const bool isInside = whole << enclosure.bits >= enclosure.lower;
    return isInside && cubic.valueAt(whole, 0).isZero() ? std::optional(whole) : std::nullopt;
}

/// The pair of complex roots that belongs to the real root r: −r/2 ± i √(3r² + 4p)/2.
std::vector<RootEnclosure> complexPair(const DepressedCubic& cubic, const Scaled& r, const BigInteger& b,
                                       const BigInteger& threeA) {
    BigInteger smaller = std::min(r.lower.magnitude(), r.upper.magnitude());
    const BigInteger larger = std::max(r.lower.magnitude(), r.upper.magnitude());
    if (r.lower.sign() * r.upper.sign() < 0) {
        smaller = 0;
    }
    const BigInteger shift = (cubic.p() << 2) << (2 * r.bits);
    const Scaled square{std::max(BigInteger(0), BigInteger(3) * smaller * smaller + shift),
                        BigInteger(3) * larger * larger + shift, 2 * r.bits};
    const Scaled root = squareRoot(square);
    const Enclosure real = shiftedAndDivided(negative(r), -(b << 1), threeA << 1);
    const BigInteger size = threeA.magnitude() << 1;
    return {{real, shiftedAndDivided(root, 0, size)}, {real, shiftedAndDivided(negative(root), 0, size)}};
}

std::vector<RootEnclosure> cubicRoots(const BigInteger& a, const BigInteger& b, const BigInteger& c,
                                      const BigInteger& d, std::size_t bits) {
    const DepressedCubic cubic(BigInteger(9) * a * c - BigInteger(3) * b * b, BigInteger(2) * b * b * b -
                                                                                  BigInteger(9) * a * b * c +
                                                                                  BigInteger(27) * a * a * d);
    const BigInteger threeA = BigInteger(3) * a;
    const auto inX = [&](const Scaled& y) { return shiftedAndDivided(y, -b, threeA); };
    const Enclosure nothing{};
    const BigInteger& p = cubic.p();
    const BigInteger& q = cubic.q();
    if (p.isZero() && q.isZero()) {
        return {{inX(exactly(0)), nothing, 3}};
    }
    if (cubic.discriminant().isZero()) {
        // The double root −3q/(2p) and the simple one 3q/p, whole numbers both.
        const BigInteger simple = BigInteger::divide(BigInteger(3) * q, p).quotient;
        const BigInteger twice = BigInteger::divide(BigInteger(-3) * q, p << 1).quotient;
        return {{inX(exactly(twice)), nothing, 2}, {inX(exactly(simple)), nothing, 1}};
    }
    std::vector<Scaled> real;
    if (q.isZero()) {
        real.push_back(exactly(0));
    } else {
        for (const Bracket& bracket : brackets(cubic, bits)) {
            real.push_back(rootInBracket(cubic, bracket, bits));
        }
    }
    for (const Scaled& enclosure : real) {
        if (const auto whole = wholeRootIn(cubic, enclosure)) {
            // What is left is y² + r y + (p + r²).
            const BigInteger& r = *whole;
            auto roots =
                quadraticRoots(-(r + (b << 1)), BigInteger(-3) * r * r - (p << 2), threeA << 1, bits);
            roots.push_back({inX(exactly(r)), nothing, 1});
            return roots;
        }
    }
    std::vector<RootEnclosure> roots;
    for (const Scaled& enclosure : real) {
        roots.push_back({inX(enclosure), nothing, 1});
    }
    if (real.size() == 1) {
        std::ranges::move(complexPair(cubic, real.front(), b, threeA), std::back_inserter(roots));
    }
    return roots;
}

/// The coefficients times a common denominator; for decimals, whose denominators are powers of ten, the
/// least.
std::vector<BigInteger> wholeMultiples(const std::vector<Fraction>& coefficients) {
    BigInteger common = 1;
    for (const Fraction& coefficient : coefficients) {
        const BigInteger& own = coefficient.denominator;
        if (BigInteger::divide(own, common).remainder.isZero()) {
            common = own;
        } else if (!BigInteger::divide(common, own).remainder.isZero()) {
            common = common * own;
        }
    }
    std::vector<BigInteger> whole;
    for (const Fraction& coefficient : coefficients) {
        whole.push_back(coefficient.numerator * BigInteger::divide(common, coefficient.denominator).quotient);
    }
    return whole;
}

} // namespace

std::vector<RootEnclosure> rootEnclosures(const std::vector<Fraction>& coefficients,
                                          std::size_t fractionBits) {
    const std::vector<BigInteger> k = wholeMultiples(coefficients);
    switch (k.size()) {
    case 2:
        return {{shiftedAndDivided(exactly(0), -k[0], k[1]), Enclosure{}, 1}};
    case 3:
        return quadraticRoots(-k[1], k[1] * k[1] - BigInteger(4) * k[0] * k[2], k[2] << 1, fractionBits);
    case 4:
        return cubicRoots(k[3], k[2], k[1], k[0], fractionBits);
    default:
        return {};
    }
}

} // namespace velmora
