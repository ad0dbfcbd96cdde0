#include "toolkit/OrvNumberSettingsCell.h"

#include "platform/files/PropertyList.h"
#include "platform/machine/Alert.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace velmora {

namespace {

constexpr std::string_view kTypographicMinus = "−";

std::string_view withoutBlanks(std::string_view text) {
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && isBlank(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

bool refuse(const std::string& title, std::string message) {
    presentAlert({.title = title, .message = std::move(message)});
    return false;
}

std::string notANumber(const std::string& text) { return "“" + text + "” is not a number."; }

} // namespace

std::optional<double> numberWithText(std::string_view text) {
    std::string plain(withoutBlanks(text));
    for (auto at = plain.find(kTypographicMinus); at != std::string::npos;
         at = plain.find(kTypographicMinus)) {
        plain.replace(at, kTypographicMinus.size(), "-");
    }
    if (plain.starts_with('+') && !plain.starts_with("+-")) {
        plain.erase(0, 1); // which the standard library does not read
    }
    double number = 0;
    const char* end = plain.data() + plain.size();
    const auto [rest, error] = std::from_chars(plain.data(), end, number);
    const bool whole = error == std::errc() && rest == end;
    return whole && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::string OrvIntegerSettingsCell::valueText() const {
    return std::to_string(value().asInteger().value_or(0));
}

bool OrvIntegerSettingsCell::setText(const std::string& text) {
    const auto number = numberWithText(text);
    const std::string range =
        "a whole number from " + std::to_string(m_minimum) + " to " + std::to_string(m_maximum) + ".";
    if (!number) {
        return refuse(title(), notANumber(text) + " Please enter " + range);
    }
    if (std::trunc(*number) != *number || *number < m_minimum || *number > m_maximum) {
        return refuse(title(), "Please enter " + range);
    }
    return setValue(PropertyList(static_cast<int>(*number)));
}

std::string OrvDoubleSettingsCell::valueText() const {
    constexpr std::size_t longest = 32; // a double's shortest form has at most 24 characters
    std::array<char, longest> buffer{};
    const double number = value().asDouble().value_or(0);
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), end};
}

bool OrvDoubleSettingsCell::setText(const std::string& text) {
    const auto number = numberWithText(text);
    return number ? setValue(PropertyList(*number))
                  : refuse(title(), notANumber(text) + " Numbers are typed like 12, -0.5 or 1E-3.");
}

double OrvSliderSettingsCell::fraction() const {
    const double number = value().asDouble().value_or(m_minimum);
    return std::clamp((number - m_minimum) / (m_maximum - m_minimum), 0.0, 1.0);
}

void OrvSliderSettingsCell::setFraction(double fraction) {
    if (fraction >= 0 && fraction <= 1) {
        setValue(PropertyList(m_minimum + fraction * (m_maximum - m_minimum)));
    }
}

} // namespace velmora
