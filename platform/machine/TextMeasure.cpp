#include "platform/machine/TextMeasure.h"

#include "platform/text/Utf8.h"

namespace velmora {

namespace {

constexpr double kAdvance = 0.6;
constexpr double kLineHeight = 1.2;

const TextMeasure& textMeasure() {
    static PlainTextMeasure plain;
    return TextMeasureScope::installedOr(plain);
}

} // namespace

double PlainTextMeasure::width(std::string_view text, double fontSize, std::string_view) const {
    return kAdvance * fontSize * static_cast<double>(codePointCount(text));
}

double PlainTextMeasure::lineHeight(double fontSize, std::string_view) const {
    return kLineHeight * fontSize;
}

double textWidth(std::string_view text, double fontSize, std::string_view fontName) {
    return textMeasure().width(text, fontSize, fontName);
}

double textLineHeight(double fontSize, std::string_view fontName) {
    return textMeasure().lineHeight(fontSize, fontName);
}

} // namespace velmora
