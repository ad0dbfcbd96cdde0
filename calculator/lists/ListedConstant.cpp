#include "calculator/lists/ListedConstant.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace velmora {

namespace {

constexpr std::string_view kUnitMark = ", ";

/// The shortest text that reads back as the number, with an exponent where that is shorter.
std::string shortestText(double number) {
    std::array<char, 32> buffer{}; // a double's shortest form has at most 24 characters
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    std::string text(buffer.data(), end);
    if (const auto exponent = text.find('e'); exponent != std::string::npos) {
        text.replace(exponent, text[exponent + 1] == '+' ? 2 : 1, "E");
    }
    return text;
}

} // namespace

std::string listedConstantValue(std::string_view content, std::string_view hint) {
    const auto equals = content.find('=');
    if (equals == std::string_view::npos) {
        return {};
    }
    std::string digits(content.substr(equals + 1));
    std::erase_if(digits, [](char c) { return c == '(' || c == ')'; }); // around an uncertain last digit
    double number = 0;
    const char* end = digits.data() + digits.size();
    const auto [rest, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || rest != end) {
        return {};
    }
    std::string text = shortestText(number);
    if (const auto unit = hint.rfind(kUnitMark); unit != std::string_view::npos) {
        text += " " + std::string(hint.substr(unit + kUnitMark.size()));
    }
    return text;
}

} // namespace velmora
