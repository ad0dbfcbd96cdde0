#include "tools/solvers/CertifiedRoots.h"

#include "toolkit/OrvNumberSettingsCell.h"
#include "tools/solvers/PolynomialSolver.h"

#include <gtest/gtest.h>

#include <random>

namespace velmora {
namespace {

using Texts = std::vector<std::string>; ///< coefficients as typed, the constant term first

/// Exact complex arithmetic, only to check with.
struct Exact {
    explicit Exact(Fraction re = {}, Fraction im = {}) : real(std::move(re)), imaginary(std::move(im)) {}

    Fraction real;
    Fraction imaginary;
};

Fraction product(const Fraction& a, const Fraction& b) {
    return {a.numerator * b.numerator, a.denominator * b.denominator};
}
Exact product(const Exact& a, const Exact& b) {
    return Exact(difference(product(a.real, b.real), product(a.imaginary, b.imaginary)),
                 sum(product(a.real, b.imaginary), product(a.imaginary, b.real)));
}
Exact difference(const Exact& a, const Exact& b) {
    return Exact(difference(a.real, b.real), difference(a.imaginary, b.imaginary));
}
Fraction squareOf(const Exact& z) { return sum(product(z.real, z.real), product(z.imaginary, z.imaginary)); }

Exact valueAt(const std::vector<Fraction>& polynomial, const Exact& z) {
    Exact value;
    for (auto k = polynomial.rbegin(); k != polynomial.rend(); ++k) {
        value = product(value, z);
        value.real = sum(value.real, *k);
    }
    return value;
}

/// Also of texts beyond the range of doubles, as roots can be.
Fraction fractionOf(const std::string& text) {
    const Decimal decimal = decimalOfText(text).value();
    const BigInteger digits = BigInteger::fromDigits(decimal.digits);
    const long power = decimal.exponent + 1 - static_cast<long>(decimal.digits.size());
    const BigInteger scale = BigInteger::powerOfTen(static_cast<std::size_t>(std::abs(power)));
    const Fraction size = power < 0 ? Fraction(digits, scale) : Fraction(digits * scale);
    return decimal.isNegative ? difference(Fraction(), size) : size;
}

/// The number that a root's text says: "1.5-2i", "-i".
Exact numberOf(std::string text) {
    if (text.back() != 'i') {
        return Exact(fractionOf(text));
    }
    text.pop_back();
    std::size_t sign = text.find_last_of("+-");
    if (sign != std::string::npos && sign > 0 && text[sign - 1] == 'e') {
        sign = sign >= 2 ? text.find_last_of("+-", sign - 2) : std::string::npos;
    }
    const std::string real = sign == std::string::npos ? "" : text.substr(0, sign);
    std::string imaginary = sign == std::string::npos ? text : text.substr(sign);
    if (imaginary.empty() || imaginary == "+" || imaginary == "-") {
        imaginary += "1";
    }
    Exact number;
    if (!real.empty()) {
        number.real = fractionOf(real);
    }
    number.imaginary = fractionOf(imaginary);
    return number;
}

/// One unit of the last of that many significant digits.
Fraction unitOf(const Fraction& value, long digits) {
    const long power = rounded(value, 1, Rounding::HalfUp).exponent - digits + 1;
    const BigInteger scale = BigInteger::powerOfTen(static_cast<std::size_t>(std::abs(power)));
    Fraction unit{1, scale};
    if (power >= 0) {
        std::swap(unit.numerator, unit.denominator);
    }
    return unit;
}

Fraction half(const Fraction& value) { return {value.numerator, value.denominator << 1}; }

struct Solved {
    std::vector<Fraction> polynomial;
    std::vector<ComplexValue> formula;
    std::vector<std::string> shown;
    std::vector<CertifiedRoot> certified;
};

Solved solved(const Texts& texts) {
    Solved result;
    auto coefficients = std::make_shared<ComplexArray>();
    for (const std::string& text : texts) {
        result.polynomial.push_back(fractionOfText(text).value());
        coefficients->emplace_back(*numberWithText(text));
    }
    const auto solver = PolynomialSolver::newPolynomialSolverWithCoefficients(coefficients);
    solver->solve();
    result.polynomial.resize(coefficients->size());
    for (const Complex& root : *solver->solutions()) {
        result.formula.push_back(root.z());
        result.shown.push_back(root.roundedDescription());
    }
    result.certified =
        certifiedRoots(result.polynomial, result.formula).value_or(std::vector<CertifiedRoot>());
    return result;
}

bool isMultiple(const CertifiedRoot& root) {
    return root.statement.find(" root, a ") != std::string::npos ||
           root.statement.find("exact, a ") != std::string::npos ||
           root.statement.find("here, a ") != std::string::npos;
}

/// A simple real root lies within half a unit of its last digit, for there the polynomial changes its sign.
bool changesSignAt(const std::vector<Fraction>& polynomial, const Fraction& root, long digits) {
    const Fraction reach = half(unitOf(root, digits));
    const int below = valueAt(polynomial, Exact(difference(root, reach))).real.sign();
    const int above = valueAt(polynomial, Exact(sum(root, reach))).real.sign();
    return valueAt(polynomial, Exact(root)).real.sign() == 0 || below * above <= 0;
}

/// Smith's disc about the number: n |p(z)| / |a (z − z2)(z − z3)| bounds the way to the next root. It is at
/// most n times the rounding where the others are far enough away.
bool liesInItsDisc(const Solved& s, std::size_t index) {
    const Exact z = numberOf(s.certified[index].digits);
    Exact divisor(s.polynomial.back());
    for (std::size_t other = 0; other < s.certified.size(); ++other) {
        if (other != index) {
            divisor = product(divisor, difference(z, numberOf(s.certified[other].digits)));
        }
    }
    Fraction unit = unitOf(z.imaginary, 15);
    if (z.real.sign() != 0) {
        unit = sum(unit, unitOf(z.real, 15));
    }
    const BigInteger most = 4; // the square of a little more than n times half a unit a part
    const Fraction limit = product(product(unit, unit), squareOf(divisor));
    return compare(squareOf(valueAt(s.polynomial, z)), {limit.numerator * most, limit.denominator}) <= 0;
}

void expectProvenRight(const Texts& texts) {
    std::string trace;
    for (const std::string& text : texts) {
        trace += text + " ";
    }
    SCOPED_TRACE(trace);
    const Solved s = solved(texts);
    ASSERT_EQ(s.certified.size(), s.polynomial.size() - 1);
    for (std::size_t i = 0; i < s.certified.size(); ++i) {
        SCOPED_TRACE(s.certified[i].digits);
        const Exact z = numberOf(s.certified[i].digits);
        if (isMultiple(s.certified[i])) {
            continue; // looked at below, by name
        }
        if (z.imaginary.sign() == 0) {
            EXPECT_TRUE(changesSignAt(s.polynomial, z.real, 15));
            if (s.certified[i].isShownRight && z.real.sign() != 0) {
                const Fraction way = difference(z.real, numberOf(s.shown[i]).real).magnitude();
                const Fraction halfUnit = half(unitOf(z.real, 6));
                EXPECT_TRUE(compare(way, halfUnit) <= 0) << s.shown[i];
            }
        } else {
            EXPECT_TRUE(liesInItsDisc(s, i));
        }
    }
}

const Texts kHardPolynomials[] = {{"1", "1e8", "1"},
                                  {"1", "1e15", "1"},
                                  {"1", "-1e16", "1e-3"},
                                  {"-2e6", "3000002", "-1000003", "1"},
                                  {"1e-300", "-2", "-1", "2e-9"},
                                  {"1", "2", "1"},
                                  {"1", "2.0000000000000001", "1"},
                                  {"1", "1.9999999999999999", "1"},
                                  {"1", "-2", "1.0000000000000000000000001"},
                                  {"0.01", "0.2", "1"},
                                  {"0.0625", "0.5", "1"},
                                  {"1e300", "1e-300"},
                                  {"3", "1e300"},
                                  {"1e-308", "1e308", "1"},
                                  {"1e300", "1e-300", "1e300"},
                                  {"1e300", "0", "0", "1e300"},
                                  {"1e200", "1e100", "1", "1e-100"},
                                  {"1", "0", "0", "1e-300"},
                                  {"-1", "0", "0", "1"},
                                  {"1", "0", "0", "1"},
                                  {"0", "0", "0", "1"},
                                  {"0", "0", "1", "1"},
                                  {"0", "1", "0", "1"},
                                  {"0", "-1", "0", "1"},
                                  {"-6", "11", "-6", "1"},
                                  {"-1", "3", "-3", "1"},
                                  {"-1", "3", "-3", "1.00000000000000000001"},
                                  {"-0.001", "0.03", "-0.3", "1"},
                                  {"-0.001", "0.03", "-0.3", "1.0001"},
                                  {"-2", "5", "-4", "1"},
                                  {"-2.0000000001", "5", "-4", "1"},
                                  {"-1.99999999999999999999", "5", "-4", "1"},
                                  {"-1.000001", "3", "-3", "1"},
                                  {"1", "-1e10", "0", "1"},
                                  {"1", "1e10", "0", "1"},
                                  {"1", "0", "1e10", "1"},
                                  {"1", "0", "-1e10", "1"},
                                  {"1e-20", "1", "1", "1"},
                                  {"1e-20", "0", "1", "1"},
                                  {"1e-12", "1"},
                                  {"-1e-11", "1"},
                                  {"9.99e-12", "1"},
                                  {"1e-12", "0", "1"},
                                  {"1e-24", "0", "1"},
                                  {"1", "-2e-12", "1"},
                                  {"1e-24", "2", "1"},
                                  {"1.000000000001", "0", "1"},
                                  {"0.999999999999", "0", "1"},
                                  {"-1.2345650", "1"},
                                  {"-1.2345649999999999999", "1"},
                                  {"-1.234575", "1"},
                                  {"-999999.5", "1"},
                                  {"-0.9999995", "1"},
                                  {"-0.99999949999", "1"},
                                  {"-9999995", "10"},
                                  {"-123456.5", "1"},
                                  {"1", "-2.000001", "1.000001", "1e-5"},
                                  {"-0.1", "0.3"},
                                  {"-7", "22", "3.3", "-1.1"},
                                  {"1e9", "-3e6", "3e3", "-1"},
                                  {"-1e-27", "3e-18", "-3e-9", "1"},
                                  {"-1e-27", "3e-18", "-3e-9", "1.0000000000001"},
                                  {"5", "-3", "1e-14", "1e-17"},
                                  {"-0.000123456789012345678", "0.1", "0", "7"}};

TEST(CertifiedRoots, areRightForHardPolynomials) {
    for (const Texts& texts : kHardPolynomials) {
        expectProvenRight(texts);
    }
}

TEST(CertifiedRoots, areRightForRandomPolynomials) {
    std::mt19937 random(20);
    const auto pick = [&](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
    for (int round = 0; round < 600; ++round) {
        Texts texts;
        for (int k = pick(2, 4); k > 0; --k) {
            const std::string digits = std::to_string(pick(-99999, 99999));
            const int kind = pick(0, 5);
            texts.push_back(kind == 0   ? "0"
                            : kind == 1 ? std::to_string(pick(-9, 9))
                                        : digits + "e" +
                                              std::to_string(pick(kind < 4 ? -5 : -20, kind < 4 ? 0 : 20)));
        }
        if (fractionOf(texts.back()).sign() == 0) {
            texts.back() = "3";
        }
        expectProvenRight(texts);
    }
}

TEST(CertifiedRoots, sayWhatTheFormulasLose) {
    struct Row {
        Texts texts;
        std::size_t index;
        const char* shown;
        bool isRight;
        const char* digits;
        const char* statement;
    };
    const Row rows[] = {
        {{"4", "2"}, 0, "-2", true, "-2", "proven exact"},
        {{"1", "1e8", "1"}, 0, "-7.45058e-09", false, "-1e-08", "proven within 2.6e-09 of the true root"},
        {{"-2e6", "3000002", "-1000003", "1"},
         0,
         "0.999997",
         false,
         "1",
         "proven within 2.8e-06 of the true root"},
        {{"1", "2", "1"}, 1, "-1", true, "-1", "proven exact, a double root"},
        {{"-0.001", "0.03", "-0.3", "1"},
         1,
         "0.100001",
         false,
         "0.1",
         "proven within 7.3e-07 of the true root, a triple root"},
        {{"1e-24", "0", "1"}, 0, "0", false, "1e-12i", "proven within 2.1e-29 of the true root"}, // not
                                                                                                  // nothing
        {{"1e-12", "1"}, 0, "0", false, "-1e-12", "proven within 2.1e-29 of the true root"},
        {{"1e300", "1e-300"}, 0, nullptr, false, "-1e+600", "the formula leaves the range of numbers here"},
        {{"-0.1", "0.3"}, 0, "0.333333", true, "0.333333333333333", "proven within 1.9e-17 of the true root"},
        {{"1", "0", "1"}, 1, "-i", true, "-i", "proven exact"},
        // A value half-way between two shown ones may be shown as either.
        {{"-1.234565", "1"}, 0, "1.23456", true, "1.234565", "proven within 8.8e-17 of the true root"},
        {{"-123456.5", "1"}, 0, "123456", true, "123456.5", "proven exact"},
        // Complex, by less than the sign of the discriminant of the doubles tells.
        {{"1", "-2", "1.0000000000000000000000001"},
         0,
         "1",
         false,
         "1+3.16227766016838e-13i",
         "proven within 3.2e-13 of the true root"},
    };
    for (const Row& row : rows) {
        const Solved s = solved(row.texts);
        SCOPED_TRACE(row.digits);
        ASSERT_GT(s.certified.size(), row.index);
        if (row.shown != nullptr) {
            EXPECT_EQ(s.shown[row.index], row.shown);
        }
        EXPECT_EQ(s.certified[row.index].isShownRight, row.isRight);
        EXPECT_EQ(s.certified[row.index].digits, row.digits);
        EXPECT_EQ(s.certified[row.index].statement, row.statement);
    }
}

TEST(CertifiedRoots, theNearestDoublesAreThoseOfTheTrueRoots) {
    const Solved small = solved({"1", "1e8", "1"});
    EXPECT_EQ(small.certified[0].nearest, ComplexValue(-1e-08)); // of −10⁻⁸ − 10⁻²⁴
    const Solved tenth = solved({"-0.1", "1"});
    EXPECT_EQ(tenth.certified[0].nearest, ComplexValue(0.1));
    const Solved golden = solved({"-1", "-1", "1"});
    EXPECT_EQ(golden.certified[0].nearest, ComplexValue(1.618033988749895));
}

TEST(CertifiedRoots, needAsManyRootsAsTheDegree) {
    EXPECT_FALSE(certifiedRoots({Fraction{1}, Fraction{1}, Fraction{1}}, {ComplexValue(1)}));
}

} // namespace
} // namespace velmora
