#pragma once

#include "calculator/keyboard/KeyboardView.h"
#include "calculator/keyboard/TypeableNames.h"
#include "calculator/model/Entering.h"
#include "engine/lines/ExpressionWithTokenArray.h"
#include "engine/lines/NamedExpression.h"
#include "engine/numbers/ComplexValue.h"
#include "platform/events/NotificationCentre.h"
#include "platform/screens/ViewController.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class DisplayHistoryTableViewController;
class ExpressionList;
class FunctionListScreen;
class KeyboardScreen;

/// The logic behind every keyboard screen: turns key presses into edits of a line, evaluates it or stores it
/// as an equation. Mode 0 is the calculator itself; the other modes are pushed by the equation editors and
/// leave by themselves when they have saved.
class KeyboardViewController final : public ViewController {
public:
    explicit KeyboardViewController(int entering = kEnteringCalculatorLine);
    ~KeyboardViewController() override;

    std::string className() const override { return "KeyboardViewController"; }
    std::string qmlFile() const override { return "KeyboardView.qml"; }

    int entering() const { return m_entering; }
    /// The list being edited (modes 1 to 3 and 5); not owned, null for none.
    ExpressionList* target() const { return m_target; }
    void setTarget(ExpressionList* target);
    int enteringWhichEquation() const { return m_enteringWhichEquation; }
    void setEnteringWhichEquation(int index);
    /// The line being edited; null only after setDisplayModel(nullptr).
    ExpressionWithTokenArray* displayModel() const { return m_displayModel.get(); }
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

    /// A key of a hardware keyboard: a name or the text it produces, see HardwareKeys.h. It presses the key
    /// on screen of the same meaning; of a key with several titles it types the one named. Letters gather to
    /// the name of a function, variable or constant. False when it means nothing here, so that the key can
    /// be left to others.
    bool hardwareKey(std::string_view key);
    /// The letters typed so far of a name that is not complete yet; they stand in the line at the cursor.
    const std::string& typedName() const { return m_typedName; }
    /// Puts a name that is complete into the line, as every other input does before it acts. False, with a
    /// notice and nothing changed, when the letters are only the start of a name.
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
    void insertText(const std::string& text);
    void insertElement(TokenElement token);
    void playClick() const;
    void typeWithoutKey(const std::string& text);
    bool typeHardwareText(const std::string& text);
    bool pressKeyOfCharacter(const std::string& character);
    bool editByHardware(void (KeyboardViewController::*edit)());
    void typeLetter(const std::string& letter);
    bool continueTypedName(const std::string& text);
    bool extendTypedName(const std::string& text);
    void insertTypedNames(const std::vector<std::string>& texts);
    TypeableNames typeableNames() const;
    std::vector<std::string> definedVariables() const;
    void showNotice(const std::string& text) const;
    void moveCursorHome();
    void moveCursorToEnd();
    void deleteForward();
    void appendLineToHistory();
    void saveInequality();
    void saveEquation();
    void leaveScreen();
    void scrollHistoryToEnd();
    void openList(const std::string& listName, bool variableIsDefined);
    void rebuildSubviews(bool always);

    int m_entering;
    ExpressionList* m_target = nullptr;
    int m_enteringWhichEquation = 0;
    std::unique_ptr<ExpressionWithTokenArray> m_displayModel;
    std::shared_ptr<CalculatorButton> m_lastButtonPressed;
    std::shared_ptr<CalculatorButton> m_previousButtonPressed;
    int m_nClears = 0;
    std::string m_typedName;
    std::unique_ptr<DisplayHistoryTableViewController> m_table;
    std::unique_ptr<KeyboardView> m_view;
    KeyboardScreen* m_screen = nullptr;
    Subscription m_historySubscription;
};

} // namespace velmora
