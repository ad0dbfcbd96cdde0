#pragma once

#include "toolkit/OrvSettingsCell.h"

#include <optional>
#include <string_view>

namespace velmora {

/// The number that a text is as a whole, with sign and exponent as people type them ("+2", "-.5", "1E-3"),
/// whatever the locale; blanks around it do not count. Nothing for any other text and for numbers beyond
/// the range of doubles.
std::optional<double> numberWithText(std::string_view text);

/// A whole number of a range.
class OrvIntegerSettingsCell final : public OrvBoundSettingsCell {
public:
    OrvIntegerSettingsCell(std::string title, Binding binding, int minimum, int maximum)
        : OrvBoundSettingsCell(std::move(title), std::move(binding)), m_minimum(minimum), m_maximum(maximum) {
    }

    Kind kind() const override { return Kind::TextField; }
    std::string valueText() const override;
    bool setText(const std::string& text) override;

private:
    int m_minimum;
    int m_maximum;
};

/// Any finite number, shown with all its digits.
class OrvDoubleSettingsCell final : public OrvBoundSettingsCell {
public:
    using OrvBoundSettingsCell::OrvBoundSettingsCell;

    Kind kind() const override { return Kind::TextField; }
    std::string valueText() const override;
    bool setText(const std::string& text) override;
};

/// A number of a range, by a knob that is pushed.
class OrvSliderSettingsCell final : public OrvBoundSettingsCell {
public:
    OrvSliderSettingsCell(std::string title, Binding binding, double minimum, double maximum)
        : OrvBoundSettingsCell(std::move(title), std::move(binding)), m_minimum(minimum), m_maximum(maximum) {
    }

    Kind kind() const override { return Kind::Slider; }
    double fraction() const override;
    void setFraction(double fraction) override;

private:
    double m_minimum;
    double m_maximum;
};

} // namespace velmora
