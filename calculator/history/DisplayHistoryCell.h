#pragma once

#include "calculator/history/DisplayCell.h"

namespace velmora {

class DisplayHistoryTableViewController;

/// A row of the history: the line on the left above its result on the right, and an invisible button over
/// each end of the row.
class DisplayHistoryCell final : public DisplayCell {
public:
    /// An invisible button over one end of the row.
    struct EndButton {
        Rect frame;
        const char* accessibleName;
    };

    static constexpr const char* kReuseIdentifier = "DisplayHistoryCell";

    /// The cell of a table row, which counts the tip row.
    DisplayHistoryCell(const DisplayHistoryTableViewController* table, int row)
        : m_table(table), m_row(row) {}

    void setTexts(std::string input, std::string output);
    /// A result that is no value is told apart by its colour.
    void setHasValue(bool hasValue);
    void layout(Size size) override;

    const LabelRecord& inputLabel() const { return m_inputLabel; }
    const LabelRecord& outputLabel() const { return m_outputLabel; }
    const EndButton& leftButton() const { return m_leftButton; }
    const EndButton& rightButton() const { return m_rightButton; }
    float rightButtonWidthMultiplier() const { return m_rightButtonWidthMultiplier; }
    void setRightButtonWidthMultiplier(float multiplier) { m_rightButtonWidthMultiplier = multiplier; }
    int row() const { return m_row; }

    /// A touch has ended inside the left or the right button: announces
    /// kCalculatorKeyboardButtonPressedNotification.
    void buttonPressed(bool left) const;

private:
    const DisplayHistoryTableViewController* m_table;
    int m_row;
    LabelRecord m_inputLabel = newLabel();
    LabelRecord m_outputLabel = newLabel();
    EndButton m_leftButton{{}, "insert expression"};
    EndButton m_rightButton{{}, "insert result"};
    float m_rightButtonWidthMultiplier = 1.0F;
};

/// Posted about the history table: user info "left" (boolean: the line's side, else the result's) and "row"
/// (integer: the table row).
inline constexpr const char* kCalculatorKeyboardButtonPressedNotification =
    "kCalculatorKeyboardButtonPressedNotification";

} // namespace velmora
