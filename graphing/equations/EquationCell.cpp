#include "graphing/equations/EquationCell.h"

#include "calculator/model/Model.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr double kSmallerLabels = 0.85;
constexpr double kSmallestFontSize = 11;
constexpr double kLargestVariablePart = 0.4; // of the width, so that the equation keeps its room

LabelRecord labelOf(std::string text, double fontSize, Color color) {
    return {.text = std::move(text),
            .fontSize = fontSize,
            .minimumFontSize = kSmallestFontSize,
            .textColor = color};
}

} // namespace

double EquationCell::baseFontSize() {
    constexpr std::array<double, 4> kSizes{20, 26, 40, 52};
    const int mode = Model::m().fontSizeMode();
    return kSizes[static_cast<std::size_t>(std::clamp(mode, 0, static_cast<int>(kSizes.size()) - 1))];
}

EquationCell::EquationCell(Size size, std::string variableText, std::string equationText, Color color,
                           double equalsZeroLabelWidth, std::string equalsZeroText)
    : m_size(size),
      m_variableLabel(labelOf(std::move(variableText), std::trunc(baseFontSize() * kSmallerLabels), color)),
      m_equationLabel(labelOf(std::move(equationText), baseFontSize(), color)),
      m_equalsZeroLabel(
          labelOf(std::move(equalsZeroText), std::trunc(baseFontSize() * kSmallerLabels), color)) {
    const double margin = leftMargin() * scaleFactor();
    const double variableWidth =
        std::min(std::ceil(textSize(m_variableLabel).width), kLargestVariablePart * size.width);
    const double right = size.width - margin - equalsZeroLabelWidth;
    m_variableLabel.frame = {margin, 0, variableWidth, size.height};
    m_equationLabel.frame = {margin + variableWidth, 0, right - margin - variableWidth, size.height};
    m_equalsZeroLabel.frame = {right, 0, equalsZeroLabelWidth, size.height};
    m_equationLabel.lineCount = 0;
    m_equationLabel.truncation = TextTruncation::WordWrap;
}

} // namespace velmora
