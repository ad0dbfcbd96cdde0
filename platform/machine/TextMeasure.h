#pragma once

#include "platform/machine/InstallScope.h"

#include <string_view>

namespace velmora {

/// How large text is when drawn. Font sizes and results are in points; an empty name is the system font.
class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    /// The width of the text on one line.
    virtual double width(std::string_view text, double fontSize, std::string_view fontName) const = 0;
    /// The distance from one line to the next.
    virtual double lineHeight(double fontSize, std::string_view fontName) const = 0;
};

/// A face whose every code point is 0.6 of the font size wide, and whose lines are 1.2 of it apart.
class PlainTextMeasure final : public TextMeasure {
public:
    double width(std::string_view text, double fontSize, std::string_view fontName) const override;
    double lineHeight(double fontSize, std::string_view fontName) const override;
};

using TextMeasureScope = InstallScope<TextMeasure>;

/// Measured in the implementation in force; the plain one while none is installed.
double textWidth(std::string_view text, double fontSize, std::string_view fontName = {});
double textLineHeight(double fontSize, std::string_view fontName = {});

} // namespace velmora
