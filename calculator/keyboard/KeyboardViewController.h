#pragma once

#include "calculator/history/ErasedHistory.h"
#include "calculator/history/HistoryRecall.h"
#include "calculator/keyboard/EditingMode.h"
#include "calculator/keyboard/KeyboardView.h"
#include "calculator/keyboard/LineEditor.h"
#include "engine/lines/TokenElement.h"
#include "engine/numbers/ComplexValue.h"
#include "platform/events/NotificationCentre.h"
#include "platform/screens/ViewController.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace velmora {

class DisplayHistoryTableViewController;
class ExpressionList;
class FunctionListScreen;
class KeyboardScreen;

/// The logic behind every keyboard screen: frames the presses of keys, lets its LineEditor edit the line, and
/// evaluates or stores it. Mode 0 is the calculator itself; the other modes are pushed by the equation
/// editors and leave by themselves when they have saved.
class KeyboardViewController final : public ViewController {
public:
    explicit KeyboardViewController(int entering = kEnteringCalculatorLine);
    ~KeyboardViewController() override;

    std::string className() const override { return "KeyboardViewController"; }
    std::string qmlFile() const override { return "KeyboardView.qml"; }

    const EditingMode& mode() const { return m_mode; }
    int entering() const { return m_entering; }
    /// The list being edited (modes 1 to 3 and 5); not owned, null for none.
    ExpressionList* target() const { return m_target; }
    void setTarget(ExpressionList* target);
    int enteringWhichEquation() const { return m_enteringWhichEquation; }
    void setEnteringWhichEquation(int index);
    /// The line being edited; null only after setDisplayModel(nullptr).
    ExpressionWithTokenArray* displayModel() const { return m_editor.line(); }
    void setDisplayModel(std::unique_ptr<ExpressionWithTokenArray> buffer);
    /// Makes an empty line when there is none, except in mode 4, whose editor hands in its own.
    void createDisplayModel();

    /// What draws the screen; not owned, null for none.
    void setScreen(KeyboardScreen* screen);
    KeyboardScreen* screen() const { return m_screen; }
    /// The view, made when first asked for.
    KeyboardView& keyboardView();
    /// The history table; null in the editing modes.
    DisplayHistoryTableViewController* displayTableViewController() const { return m_table.get(); }

    // Called by the keys.
    void buttonPressedPre(CalculatorButton& button);
    void buttonPressedPost(CalculatorButton& button);
    void buttonPressed(CalculatorButton& button);
    void buttonPressedWithText(const std::string& text);
    void deleteAtCursor();
    void leftButtonPressed();
    void rightButtonPressed();
    void clearButtonPressed();
    void removeButtonPressed();
    void functionButtonPressed();
    void constantButtonPressed();
    void trigButtonPressed();
    void unitsButtonPressed();
    void sqrtButtonPressed();
    void inequalityButtonPressed(CalculatorButton& button);
    void parenEqualsButtonPressed(CalculatorButton& button);
    void equalsButtonPressed();

    // Called by screens that were opened from here, and by the lists of other tabs.
    void functionSelected(const std::string& text);
    void namedExpressionSelected(TokenElement token);
    void numberEntered(ComplexValue value);

    void insertANS();
    void clearDisplayData();
    void updateDisplay();
    /// Shows the history as it now stands; nothing in the editing modes.
    void reloadHistory();

    // From other inputs than the keys on screen.

    LineEditor& editor() { return m_editor; }
    /// An edit by another input: one step of the line, which ends the series of presses. The text it returns
    /// is shown as a notice, unless it is empty.
    void edit(const std::function<std::string(LineEditor&)>& change);
    /// An edit that needs letters still waiting to be read first. With letters that cannot be read nothing
    /// is changed, and a notice says why.
    void editBehindNames(const std::function<void(LineEditor&)>& change);
    /// A key of a hardware keyboard, see HardwareKeyboard.
    bool hardwareKey(std::string_view key);
    /// Takes the last edit of the line back, or makes it again.
    void undo();
    void redo();
    /// Puts what the pasteboard holds into the line: tokens of this program, or a text that can be read as a
    /// whole. Otherwise nothing changes and a notice says why.
    void paste();
    static bool canPaste();
    /// Brings the rows back that the clear key has just erased.
    void bringHistoryBack();
    /// The other of radians and degrees, told with a notice.
    void switchAngleMode();
    /// The calculator's line as the model has kept it from the run before.
    void takeUpHalfTypedLine();
    /// Shows an earlier (-1) or later (1) line of the history for editing; past the latest comes what was
    /// typed before. False in the editing modes, which have no history.
    bool recallLine(int direction);
    /// The characters typed so far that are no tokens yet; they stand in the line at the cursor.
    const std::string& typedName() const { return m_editor.typedName(); }
    /// Puts a name that is complete into the line, as every other input does before it acts. False, with a
    /// notice and nothing changed, when the letters are no name.
    bool finishTypedName();
    /// Whether a press of the key can be acted on now; tells why when it cannot.
    bool isReadyForPress(const CalculatorButton& button);
    /// A tap between tokens of the entry line; the gap is clamped to the line.
    void cursorTappedAt(int gap);
    /// The same by the place of the tap, in the view's coordinates. While the edit menu is open the tap
    /// closes it instead.
    void entryLineTapped(Point point);

    const std::shared_ptr<CalculatorButton>& lastButtonPressed() const { return m_lastButtonPressed; }
    const std::shared_ptr<CalculatorButton>& previousButtonPressed() const { return m_previousButtonPressed; }
    int nClears() const { return m_nClears; }

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    bool shouldAutorotate(Orientation orientation) const override;
    void willAnimateRotation(Orientation to) override;
    void didRotate(Orientation from) override;

private:
    void displayTableViewButtonPressed(const Notification& notification);
    void endPressCounts();
    void playClick() const;
    void showNotice(const std::string& text) const;
    void appendLineToHistory();
    void eraseHistory();
    void leaveScreen();
    void lineEdited();
    void keepHalfTypedLine();
    void scrollHistoryToEnd();
    void rebuildSubviews(bool always);

    int m_entering;
    ExpressionList* m_target = nullptr;
    int m_enteringWhichEquation = 0;
    const EditingMode& m_mode;
    LineEditor m_editor{m_mode};
    HistoryRecall m_recall;
    ErasedHistory m_erased;
    std::shared_ptr<CalculatorButton> m_lastButtonPressed;
    std::shared_ptr<CalculatorButton> m_previousButtonPressed;
    int m_nClears = 0;
    std::unique_ptr<DisplayHistoryTableViewController> m_table;
    std::unique_ptr<KeyboardView> m_view;
    KeyboardScreen* m_screen = nullptr;
    Subscription m_historySubscription;
};

} // namespace velmora
