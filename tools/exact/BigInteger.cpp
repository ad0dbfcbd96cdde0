#include "tools/exact/BigInteger.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace velmora {

namespace {

constexpr unsigned kLimbBits = 32;
constexpr std::uint64_t kBase = std::uint64_t{1} << kLimbBits;

std::uint32_t low(std::uint64_t value) { return static_cast<std::uint32_t>(value); }

} // namespace

BigInteger::BigInteger(std::int64_t value) : m_isNegative(value < 0) {
    auto rest = value < 0 ? ~static_cast<std::uint64_t>(value) + 1 : static_cast<std::uint64_t>(value);
    for (; rest != 0; rest >>= kLimbBits) {
        m_limbs.push_back(low(rest));
    }
}

BigInteger BigInteger::fromDigits(std::string_view digits) {
    BigInteger number;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') {
            break;
        }
        std::uint64_t carry = static_cast<std::uint64_t>(digit - '0');
        for (std::uint32_t& limb : number.m_limbs) {
            carry += std::uint64_t{limb} * 10;
            limb = low(carry);
            carry >>= kLimbBits;
        }
        if (carry != 0) {
            number.m_limbs.push_back(low(carry));
        }
    }
    return number;
}

BigInteger BigInteger::powerOfTen(std::size_t exponent) {
    BigInteger power = 1;
    BigInteger square = 10;
    for (; exponent != 0; exponent >>= 1) {
        if ((exponent & 1) != 0) {
            power = power * square;
        }
        square = square * square;
    }
    return power;
}

std::size_t BigInteger::bitLength() const {
    return isZero() ? 0 : (m_limbs.size() - 1) * kLimbBits + std::bit_width(m_limbs.back());
}

bool BigInteger::bit(std::size_t index) const {
    const std::size_t limb = index / kLimbBits;
    return limb < m_limbs.size() && (m_limbs[limb] >> (index % kLimbBits) & 1) != 0;
}

void BigInteger::trim() {
    while (!m_limbs.empty() && m_limbs.back() == 0) {
        m_limbs.pop_back();
    }
    m_isNegative = m_isNegative && !m_limbs.empty();
}

std::strong_ordering BigInteger::compareMagnitudes(const Limbs& a, const Limbs& b) {
    if (a.size() != b.size()) {
        return a.size() <=> b.size();
    }
    return std::lexicographical_compare_three_way(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

std::strong_ordering operator<=>(const BigInteger& a, const BigInteger& b) {
    if (a.m_isNegative != b.m_isNegative) {
        return a.m_isNegative ? std::strong_ordering::less : std::strong_ordering::greater;
    }
    return a.m_isNegative ? BigInteger::compareMagnitudes(b.m_limbs, a.m_limbs)
                          : BigInteger::compareMagnitudes(a.m_limbs, b.m_limbs);
}

void BigInteger::addMagnitude(Limbs& a, const Limbs& b) {
    a.resize(std::max(a.size(), b.size()));
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        carry += std::uint64_t{a[i]} + (i < b.size() ? b[i] : 0);
        a[i] = low(carry);
        carry >>= kLimbBits;
    }
    if (carry != 0) {
        a.push_back(low(carry));
    }
}

void BigInteger::subtractSmallerMagnitude(Limbs& a, const Limbs& b) {
    std::uint64_t borrow = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const std::uint64_t taken = (i < b.size() ? b[i] : 0) + borrow;
        borrow = a[i] < taken ? 1 : 0;
        a[i] = low(a[i] + (borrow << kLimbBits) - taken);
    }
}

void BigInteger::addSigned(const BigInteger& other, bool otherIsNegative) {
    if (m_isNegative == otherIsNegative) {
        addMagnitude(m_limbs, other.m_limbs);
    } else if (compareMagnitudes(m_limbs, other.m_limbs) >= 0) {
        subtractSmallerMagnitude(m_limbs, other.m_limbs);
    } else {
        Limbs larger = other.m_limbs;
        subtractSmallerMagnitude(larger, m_limbs);
        m_limbs = std::move(larger);
        m_isNegative = otherIsNegative;
    }
    trim();
}

BigInteger BigInteger::operator-() const {
    BigInteger result = *this;
    result.m_isNegative = !m_isNegative && !isZero();
    return result;
}

BigInteger& BigInteger::operator+=(const BigInteger& other) {
    addSigned(other, other.m_isNegative);
    return *this;
}

BigInteger& BigInteger::operator-=(const BigInteger& other) {
    addSigned(other, !other.m_isNegative);
    return *this;
}

BigInteger operator*(const BigInteger& a, const BigInteger& b) {
    BigInteger result;
    result.m_limbs.resize(a.m_limbs.size() + b.m_limbs.size());
    for (std::size_t i = 0; i < a.m_limbs.size(); ++i) {
        std::uint64_t carry = 0;
        for (std::size_t j = 0; j < b.m_limbs.size(); ++j) {
            carry += std::uint64_t{a.m_limbs[i]} * b.m_limbs[j] + result.m_limbs[i + j];
            result.m_limbs[i + j] = low(carry);
            carry >>= kLimbBits;
        }
        result.m_limbs[i + b.m_limbs.size()] = low(carry);
    }
    result.m_isNegative = a.m_isNegative != b.m_isNegative;
    result.trim();
    return result;
}

BigInteger operator<<(const BigInteger& a, std::size_t bits) {
    const std::size_t limbs = bits / kLimbBits;
    BigInteger result;
    result.m_limbs.assign(limbs, 0);
    std::uint64_t carry = 0;
    for (const std::uint32_t limb : a.m_limbs) {
        carry |= std::uint64_t{limb} << (bits % kLimbBits);
        result.m_limbs.push_back(low(carry));
        carry >>= kLimbBits;
    }
    result.m_limbs.push_back(low(carry));
    result.m_isNegative = a.m_isNegative;
    result.trim();
    return result;
}

BigInteger operator>>(const BigInteger& a, std::size_t bits) {
    const std::size_t limbs = bits / kLimbBits;
    BigInteger result;
    for (std::size_t i = limbs; i < a.m_limbs.size(); ++i) {
        const std::uint64_t above = i + 1 < a.m_limbs.size() ? a.m_limbs[i + 1] : 0;
        result.m_limbs.push_back(low((above << kLimbBits | a.m_limbs[i]) >> (bits % kLimbBits)));
    }
    result.m_isNegative = a.m_isNegative;
    result.trim();
    return result;
}

std::uint32_t BigInteger::divideByLimb(Limbs& limbs, std::uint32_t divisor) {
    std::uint64_t rest = 0;
    for (auto limb = limbs.rbegin(); limb != limbs.rend(); ++limb) {
        rest = rest << kLimbBits | *limb;
        *limb = low(rest / divisor);
        rest %= divisor;
    }
    return low(rest);
}

// Knuth, The Art of Computer Programming 2, algorithm 4.3.1 D.
BigInteger::Division BigInteger::divide(const BigInteger& dividend, const BigInteger& divisor) {
    Division result;
    if (compareMagnitudes(dividend.m_limbs, divisor.m_limbs) < 0) {
        result.remainder = dividend;
        return result;
    }
    if (divisor.m_limbs.size() == 1) {
        result.quotient.m_limbs = dividend.m_limbs;
        result.remainder.m_limbs = {divideByLimb(result.quotient.m_limbs, divisor.m_limbs.front())};
    } else {
        const auto shift = static_cast<std::size_t>(std::countl_zero(divisor.m_limbs.back()));
        const Limbs v = (divisor.magnitude() << shift).m_limbs;
        Limbs u = (dividend.magnitude() << shift).m_limbs;
        const std::size_t n = v.size();
        u.resize(dividend.m_limbs.size() + 1);
        const std::size_t m = u.size() - n;
        result.quotient.m_limbs.resize(m);
        for (std::size_t j = m; j-- > 0;) {
            const std::uint64_t top = std::uint64_t{u[j + n]} << kLimbBits | u[j + n - 1];
            std::uint64_t digit = top / v[n - 1];
            std::uint64_t rest = top % v[n - 1];
            while (digit >= kBase || digit * v[n - 2] > (rest << kLimbBits | u[j + n - 2])) {
                --digit;
                rest += v[n - 1];
                if (rest >= kBase) {
                    break;
                }
            }
            std::uint64_t carry = 0;
            std::uint64_t borrow = 0;
            for (std::size_t i = 0; i <= n; ++i) {
                carry += digit * (i < n ? v[i] : 0);
                const std::uint64_t taken = std::uint64_t{low(carry)} + borrow;
                carry >>= kLimbBits;
                borrow = u[j + i] < taken ? 1 : 0;
                u[j + i] = low(u[j + i] + (borrow << kLimbBits) - taken);
            }
            if (borrow != 0) { // the digit was one too large
                --digit;
                std::uint64_t sum = 0;
                for (std::size_t i = 0; i <= n; ++i) {
                    sum += std::uint64_t{u[j + i]} + (i < n ? v[i] : 0);
                    u[j + i] = low(sum);
                    sum >>= kLimbBits;
                }
            }
            result.quotient.m_limbs[j] = low(digit);
        }
        BigInteger rest;
        rest.m_limbs = std::move(u);
        rest.trim();
        result.remainder = rest >> shift;
    }
    result.quotient.m_isNegative = dividend.m_isNegative != divisor.m_isNegative;
    result.remainder.m_isNegative = dividend.m_isNegative;
    result.quotient.trim();
    result.remainder.trim();
    return result;
}

BigInteger BigInteger::floorQuotient(const BigInteger& dividend, const BigInteger& divisor) {
    Division result = divide(dividend, divisor);
    if (!result.remainder.isZero() && dividend.m_isNegative != divisor.m_isNegative) {
        result.quotient -= 1;
    }
    return result.quotient;
}

BigInteger BigInteger::squareRoot() const {
    if (sign() <= 0) {
        return {};
    }
    // From above, Newton's steps fall until they have the root.
    BigInteger root = BigInteger(1) << ((bitLength() + 1) / 2);
    for (;;) {
        BigInteger next = (root + divide(*this, root).quotient) >> 1;
        if (next >= root) {
            return root;
        }
        root = std::move(next);
    }
}

std::string BigInteger::text() const {
    if (isZero()) {
        return "0";
    }
    constexpr std::uint32_t group = 1000000000;
    constexpr int digitsOfGroup = 9;
    std::string reversed;
    Limbs rest = m_limbs;
    while (!rest.empty()) {
        std::uint32_t digits = divideByLimb(rest, group);
        while (!rest.empty() && rest.back() == 0) {
            rest.pop_back();
        }
        for (int i = 0; i < digitsOfGroup && (digits != 0 || !rest.empty()); ++i) {
            reversed += static_cast<char>('0' + digits % 10);
            digits /= 10;
        }
    }
    if (m_isNegative) {
        reversed += '-';
    }
    return {reversed.rbegin(), reversed.rend()};
}

} // namespace velmora
