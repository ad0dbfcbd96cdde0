#pragma once

#include "calculator/keyboard/ButtonLayout.h"
#include "calculator/keyboard/CalculatorButton.h"
#include "calculator/keyboard/CalculatorLabel.h"
#include "platform/screens/Color.h"
#include "platform/screens/Geometry.h"
#include "toolkit/LabelRecord.h"

#include <memory>
#include <string>
#include <vector>

namespace velmora {

class DisplayHistoryTableViewController;
class ExpressionList;
class ExpressionWithTokenArray;
struct EntryLineText;
struct EditingMode;
class KeyboardViewController;

/// The calculator screen's contents: the keys, the entry line and, in mode 0, the place of the history
/// above them. All frames are in points, in the view's own coordinates.
class KeyboardView {
public:
    explicit KeyboardView(KeyboardViewController& controller);
    ~KeyboardView();

    // Copies of the controller's.
    void setTarget(ExpressionList* target) { m_target = target; }
    void setEnteringWhichEquation(int index) { m_enteringWhichEquation = index; }
    void setDisplayModel(ExpressionWithTokenArray* buffer);
    void setDisplayTableView(DisplayHistoryTableViewController* table) { m_displayTableView = table; }

    /// The view's size; a change lays everything out anew.
    void setSize(double width, double height);
    const Size& size() const { return m_size; }

    /// Rebuilds everything: keys, entry line, frames.
    void createSubviews();
    /// Rebuilds only if the geometry, a keyboard setting or the variable differs from what the keys were
    /// made for. True when it did.
    bool createSubviewsIfNeeded();
    void layoutSubviews();
    void layoutTableView();
    void createButtons();
    /// The face of the tall key: ")" while a parenthesis is open.
    void updateEqualsButton();
    /// Lights the key of the sign of the inequality being edited, which the line does not show.
    void updateChosenSign();
    /// The entry line's text, the tall key's face and the lit sign.
    void updateDisplay();

    /// The keys in the order of the layout, the ones not shown included.
    const std::vector<std::shared_ptr<CalculatorButton>>& buttonArray() const { return m_buttons; }
    /// The tall key; null when there are no keys.
    const std::shared_ptr<CalculatorButton>& equalsButton() const { return m_equalsButton; }
    const std::string& equalsBackgroundImageName() const { return m_equalsBackgroundImageName; }
    /// The shown key whose title holds the text as one of its alternatives, or null.
    std::shared_ptr<CalculatorButton> buttonTyping(const std::string& text) const;
    /// The shown key made from that character of the layout string, or null.
    std::shared_ptr<CalculatorButton> buttonWithCharacter(const std::string& character) const;

    CalculatorLabel& currentEntryLabel() { return m_currentEntryLabel; }
    const CalculatorLabel& currentEntryLabel() const { return m_currentEntryLabel; }
    /// The entry label's text as it is drawn, with a line feed at the end of each line but the last.
    const std::string& currentEntryLines() const { return m_currentEntryLines; }
    /// All that the entry line has to show, of which a label too narrow shows a part.
    EntryLineText entryText() const;
    /// Whether the cursor stands behind all of the entry label's text, where no mark is written for it.
    bool isCursorAtEndOfEntry() const { return m_isCursorAtEndOfEntry; }
    /// The sign of the angle mode, "RAD" or "DEG", in a corner of the entry line; hidden where the line
    /// reaches it.
    const LabelRecord& angleSign() const { return m_angleSign; }
    const LabelRecord& backingLabel() const { return m_backingLabel; }
    Color backgroundColor() const { return Color::white(0.2); }

    // Frame queries.
    Rect gridFrame() const;
    Rect backingLabelFrame() const;
    Rect entryLineFrame() const;
    /// Empty outside mode 0.
    Rect displayTableFrame() const;
    double topOfHistoryArea() const; ///< where the history ends and the entry line of mode 0 begins
    int numberOfColumns() const;
    int numberOfRows() const;

    /// The gap between tokens nearest to a point of the view.
    int tokenGapAtPoint(Point point) const;
    /// "." or ". i", the title of the point's key.
    std::string decimalButtonTitle() const;
    std::string titleStringWithUnichar(const std::string& character) const;
    /// The adjusted layout string.
    std::string buttonLayoutString() const;

private:
    struct KeyboardConfiguration {
        int geometry = -1;
        int whichKeyboard = 0;
        bool iOnMainKeyboard = false;
        std::string variableName;
        bool operator==(const KeyboardConfiguration&) const = default;
    };

    KeyboardConfiguration configuration() const;
    std::string variableName() const;
    ButtonLayout newButtonLayout() const;
    ButtonLayout newIPhoneButtonLayout() const;
    ButtonLayout newWideButtonLayout() const;
    void updateAngleSign();
    void setUpButton(CalculatorButton& button, const std::string& character);

    KeyboardViewController& m_controller;
    const EditingMode& m_mode;
    ExpressionList* m_target = nullptr;
    int m_enteringWhichEquation = 0;
    ExpressionWithTokenArray* m_displayModel = nullptr;
    DisplayHistoryTableViewController* m_displayTableView = nullptr;
    Size m_size;

    KeyboardConfiguration m_builtFor;
    std::vector<std::string> m_characters; // of the keys, in their order; a blank for each key not shown
    std::vector<std::shared_ptr<CalculatorButton>> m_buttons;
    std::shared_ptr<CalculatorButton> m_equalsButton;
    std::string m_equalsBackgroundImageName;
    CalculatorLabel m_currentEntryLabel;
    std::string m_currentEntryLines;
    bool m_isCursorAtEndOfEntry = true;
    LabelRecord m_angleSign;
    LabelRecord m_backingLabel;
};

} // namespace velmora
