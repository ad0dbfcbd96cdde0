#include "calculator/history/DisplayHistoryCell.h"

#include "calculator/history/DisplayHistoryTableViewController.h"
#include "platform/events/NotificationCentre.h"

namespace velmora {

namespace {

constexpr double kSideMargin = 10;
constexpr double kRowHeightOfDesign = 38; // the row and its font are scaled alike
constexpr double kFontSizeOfDesign = 15;

// Muted, at 8.7 to 1 on black.
constexpr Color kErrorColor{0.80, 0.62, 0.50, 1};

} // namespace

void DisplayHistoryCell::setTexts(std::string input, std::string output) {
    m_inputLabel.text = std::move(input);
    m_outputLabel.text = std::move(output);
}

void DisplayHistoryCell::setHasValue(bool hasValue) {
    m_outputLabel.textColor = hasValue ? Color::white(1) : kErrorColor;
}

void DisplayHistoryCell::layout(Size size) {
    const double halfHeight = size.height / 2;
    const double labelWidth = size.width - 2 * kSideMargin;
    m_inputLabel.frame = {kSideMargin, 0, labelWidth, halfHeight};
    m_outputLabel.frame = {kSideMargin, halfHeight, labelWidth, halfHeight};
    m_outputLabel.alignment = TextAlignment::Right;
    for (LabelRecord* label : {&m_inputLabel, &m_outputLabel}) {
        label->fontSize = size.height * kFontSizeOfDesign / kRowHeightOfDesign;
    }
    const double quarter = size.width / 4;
    const double rightWidth = quarter * static_cast<double>(m_rightButtonWidthMultiplier);
    m_leftButton.frame = {0, 0, quarter, size.height};
    m_rightButton.frame = {size.width - rightWidth, 0, rightWidth, size.height};
}

void DisplayHistoryCell::buttonPressed(bool left) const {
    NotificationCentre::defaultCentre().post(kCalculatorKeyboardButtonPressedNotification, m_table,
                                             {{"left", left}, {"row", m_row}});
}

} // namespace velmora
