#pragma once

#include "platform/Color.h"
#include "platform/Geometry.h"
#include "toolkit/LabelRecord.h"

namespace velmora {

class DisplayHistoryTableViewController;

/// A row of the history: the line on the left above its result on the right, and an invisible button over
/// each end of the row.
class DisplayHistoryCell {
public:
    static constexpr const char* kReuseIdentifier = "DisplayHistoryCell";

    /// The cell of a table row, which counts the tip row.
    DisplayHistoryCell(const DisplayHistoryTableViewController* table, int row)
        : m_table(table), m_row(row) {}

    void setTexts(std::string input, std::string output);
    /// Lays out a row of that size, in points.
    void layout(Size size);

    const LabelRecord& inputLabel() const { return m_inputLabel; }
    const LabelRecord& outputLabel() const { return m_outputLabel; }
    const Rect& leftButtonFrame() const { return m_leftButtonFrame; }
    const Rect& rightButtonFrame() const { return m_rightButtonFrame; }
    static constexpr const char* kLeftButtonAccessibleName = "insert expression";
    static constexpr const char* kRightButtonAccessibleName = "insert result";
    float rightButtonWidthMultiplier() const { return m_rightButtonWidthMultiplier; }
    void setRightButtonWidthMultiplier(float multiplier) { m_rightButtonWidthMultiplier = multiplier; }
    Color backgroundColor() const { return Color::white(0); }
    int row() const { return m_row; }

    /// A touch has ended inside the left or the right button: announces
    /// kCalculatorKeyboardButtonPressedNotification.
    void buttonPressed(bool left) const;

private:
    const DisplayHistoryTableViewController* m_table;
    int m_row;
    LabelRecord m_inputLabel;
    LabelRecord m_outputLabel;
    Rect m_leftButtonFrame;
    Rect m_rightButtonFrame;
    float m_rightButtonWidthMultiplier = 1.0F;
};

/// Posted about the history table: user info "left" (boolean: the line's side, else the result's) and "row"
/// (integer: the table row).
inline constexpr const char* kCalculatorKeyboardButtonPressedNotification =
    "kCalculatorKeyboardButtonPressedNotification";

} // namespace velmora
