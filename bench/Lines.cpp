#include "bench/Lines.h"

#include <cmath>
#include <numbers>
#include <sstream>

namespace velmora::bench {

namespace {

// The twins: what a careful programmer would write for one curve. Real arithmetic while the argument is
// real and the value stays so, complex arithmetic otherwise, and a quotient by 0 is undefined.

double quotient(double a, double b) { return b == 0 ? std::nan("") : a / b; }

template <double (*real)(double), ComplexValue (*complex)(ComplexValue)> ComplexValue twin(ComplexValue z) {
    return isReal(z) ? ComplexValue(real(z.real()), 0.0) : complex(z);
}

double parabola(double x) { return x * x - 1; }
ComplexValue parabola(ComplexValue z) { return z * z - 1.0; }

double sinc(double x) { return quotient(std::sin(x), x); }
ComplexValue sinc(ComplexValue z) { return std::sin(z) / z; }

double rational(double x) { return quotient(x * x * x - 2 * x + 1, x * x + 1); }
ComplexValue rational(ComplexValue z) { return (z * z * z - 2.0 * z + 1.0) / (z * z + 1.0); }

double wavePacket(double x) { return std::pow(std::numbers::e, -(x * x)) * std::cos(5 * x); }
ComplexValue wavePacket(ComplexValue z) { return std::pow(std::numbers::e, -(z * z)) * std::cos(5.0 * z); }

ComplexValue rootAndLogarithm(ComplexValue z) {
    if (isReal(z) && z.real() >= 0) {
        return {std::sqrt(z.real()) + std::log(z.real() + 20), 0.0};
    }
    return std::sqrt(z) + std::log(z + 20.0);
}

double tangent(double x) { return std::tan(x); }
ComplexValue tangent(ComplexValue z) { return std::tan(z); }

double cubeRootOfMagnitude(double x) { return std::cbrt(std::abs(x)); }
ComplexValue cubeRootOfMagnitude(ComplexValue z) { return std::cbrt(std::abs(z)); }

template <typename Value> Value horner(Value x) {
    Value value = 1.0;
    for (int i = 2; i <= 16; ++i) {
        value = value * x + static_cast<double>(i % 10);
    }
    return value;
}

double horner(double x) { return horner<double>(x); }
ComplexValue horner(ComplexValue z) { return horner<ComplexValue>(z); }

/// 1 x + 2, all times x, plus 3, … : 61 nodes.
std::string hornerText(const char* separator) {
    const std::string s = separator;
    std::string text = "1";
    for (int i = 2; i <= 16; ++i) {
        text = "(" + s + text + s + "*" + s + "x" + s + "+" + s + std::to_string(i % 10) + s + ")";
    }
    return text;
}

} // namespace

TokenArray tokensOf(const std::string& text) {
    TokenArray tokens;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        tokens.emplace_back(Token(word));
    }
    return tokens;
}

const std::vector<Line>& lines() {
    static const std::vector<Line> lines{
        {"x^2-1", tokensOf("x ^ 2 - 1"), "x^2-1", twin<parabola, parabola>},
        {"sin(x)/x", tokensOf("sin( x ) / x"), "sin(x)/x", twin<sinc, sinc>},
        {"(x^3-2x+1)/(x^2+1)", tokensOf("( x ^ 3 - 2 * x + 1 ) / ( x ^ 2 + 1 )"), "(x^3-2*x+1)/(x^2+1)",
         twin<rational, rational>},
        {"e^(-x^2)cos(5x)", tokensOf("e ^ ( - x ^ 2 ) * cos( 5 * x )"), "_e^(-x^2)*cos(5*x)",
         twin<wavePacket, wavePacket>},
        {"sqrt(x)+ln(x+20)", tokensOf("sqrt( x ) + ln( x + 2 0 )"), "sqrt(x)+ln(x+20)", rootAndLogarithm},
        {"tan(x)", tokensOf("tan( x )"), "tan(x)", twin<tangent, tangent>},
        {"abs(x)^(1/3)", tokensOf("abs( x ) ^ ( 1 / 3 )"), "abs(x)^(1/3)",
         twin<cubeRootOfMagnitude, cubeRootOfMagnitude>},
        {"Horner60", tokensOf(hornerText(" ")), hornerText(""), twin<horner, horner>},
    };
    return lines;
}

const Line& complexLine() { return lines()[4]; }

} // namespace velmora::bench
