#include "engine/display/FullPrecisionText.h"

#include <array>
#include <charconv>
#include <cmath>

namespace velmora {

namespace {

std::string shortest(double number) {
    constexpr std::size_t longest = 32; // a double's shortest form has at most 24 characters
    std::array<char, longest> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), end};
}

} // namespace

std::string fullPrecisionText(ComplexValue value) {
    if (std::isnan(value.real()) || std::isnan(value.imag())) {
        return "undefined";
    }
    if (isReal(value)) {
        return shortest(value.real());
    }
    const std::string imaginary = shortest(value.imag()) + "i";
    if (value.real() == 0) {
        return imaginary;
    }
    return shortest(value.real()) + (value.imag() < 0 ? "" : "+") + imaginary;
}

} // namespace velmora
