#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// A whole number of any size, by the school methods on digits of 32 bits: exact, and fast enough for
/// numbers of a few thousand digits.
class BigInteger {
public:
    BigInteger() = default;
    BigInteger(std::int64_t value); // NOLINT: a plain number is meant wherever one is wanted

    /// The number of decimal digits only; anything but a digit ends it.
    static BigInteger fromDigits(std::string_view digits);
    /// 10 to the power, which is not negative.
    static BigInteger powerOfTen(std::size_t exponent);

    bool isZero() const { return m_limbs.empty(); }
    bool isNegative() const { return m_isNegative; }
    /// −1, 0 or 1.
    int sign() const { return isZero() ? 0 : m_isNegative ? -1 : 1; }
    /// How many binary digits the magnitude has; 0 for 0.
    std::size_t bitLength() const;
    bool bit(std::size_t index) const;

    BigInteger operator-() const;
    BigInteger magnitude() const { return m_isNegative ? -*this : *this; }
    BigInteger& operator+=(const BigInteger& other);
    BigInteger& operator-=(const BigInteger& other);
    friend BigInteger operator+(BigInteger a, const BigInteger& b) { return a += b; }
    friend BigInteger operator-(BigInteger a, const BigInteger& b) { return a -= b; }
    friend BigInteger operator*(const BigInteger& a, const BigInteger& b);
    /// Times or over a power of two; what falls below the last binary digit of the magnitude is dropped.
    friend BigInteger operator<<(const BigInteger& a, std::size_t bits);
    friend BigInteger operator>>(const BigInteger& a, std::size_t bits);

    friend bool operator==(const BigInteger&, const BigInteger&) = default;
    friend std::strong_ordering operator<=>(const BigInteger& a, const BigInteger& b);

    struct Division;
    /// Towards zero, with a remainder of the dividend's sign. The divisor is not 0.
    static Division divide(const BigInteger& dividend, const BigInteger& divisor);
    /// The largest whole number that is not above the quotient.
    static BigInteger floorQuotient(const BigInteger& dividend, const BigInteger& divisor);
    /// The largest whole number whose square is not above this one, which is not negative.
    BigInteger squareRoot() const;

    /// Its decimal digits, with "-" before them.
    std::string text() const;

private:
    using Limbs = std::vector<std::uint32_t>;

    void trim();
    static std::strong_ordering compareMagnitudes(const Limbs& a, const Limbs& b);
    static void addMagnitude(Limbs& a, const Limbs& b);
    static void subtractSmallerMagnitude(Limbs& a, const Limbs& b);
    void addSigned(const BigInteger& other, bool otherIsNegative);
    static std::uint32_t divideByLimb(Limbs& limbs, std::uint32_t divisor);

    Limbs m_limbs; ///< the lowest first, the highest not 0
    bool m_isNegative = false;
};

struct BigInteger::Division {
    BigInteger quotient;
    BigInteger remainder;
};

} // namespace velmora
