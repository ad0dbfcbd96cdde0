#include "calculator/keyboard/KeyboardViewController.h"

#include "calculator/history/DisplayHistoryTableViewController.h"
#include "calculator/keyboard/HardwareKeyboard.h"
#include "calculator/keyboard/KeyboardScreen.h"
#include "calculator/keyboard/LineStoring.h"
#include "calculator/keyboard/OpenedScreens.h"
#include "calculator/keyboard/PastedText.h"
#include "calculator/model/InequalityTokens.h"
#include "calculator/model/Model.h"
#include "engine/tree/Number.h"
#include "engine/tree/UnreadableToken.h"
#include "platform/events/ActionScope.h"
#include "platform/files/KeyedArchive.h"
#include "platform/machine/Pasteboard.h"
#include "platform/machine/StaticObjectManager.h"
#include "platform/screens/NavigationController.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velmora {

namespace {

constexpr int kClearsThatEraseTheHistory = 3;

} // namespace

KeyboardViewController::KeyboardViewController(int entering)
    : m_entering(entering), m_mode(editingMode(entering)) {
    setTabImage("alpha image.png");
    if (m_mode.tallKey == TallKeyAction::StoresInequality) {
        m_editor.exchangeLine(std::make_unique<InequalityTokens>());
    } else {
        m_editor.exchangeLine(std::make_unique<ExpressionWithTokenArray>());
    }
    if (m_mode.isCalculator()) {
        setHidesNavigationBar(true);
        m_table = std::make_unique<DisplayHistoryTableViewController>();
        m_historySubscription = NotificationCentre::defaultCentre().addObserver(
            kCalculatorKeyboardButtonPressedNotification,
            [this](const Notification& notification) { displayTableViewButtonPressed(notification); },
            m_table.get());
    } else {
        setRightBarButtons({BarButton{"Clear+Save", [this] { removeButtonPressed(); }}});
    }
}

KeyboardViewController::~KeyboardViewController() {
    for (const auto& button : {m_lastButtonPressed, m_previousButtonPressed}) {
        if (button) {
            button->setController(nullptr);
        }
    }
    if (m_view) {
        for (const auto& button : m_view->buttonArray()) {
            button->setController(nullptr);
        }
    }
}

void KeyboardViewController::setTarget(ExpressionList* target) {
    m_target = target;
    m_editor.setTarget(target);
    if (m_view) {
        m_view->setTarget(target);
        m_view->createSubviewsIfNeeded();
    }
    updateDisplay();
}

void KeyboardViewController::setEnteringWhichEquation(int index) {
    m_enteringWhichEquation = index;
    if (m_view) {
        m_view->setEnteringWhichEquation(index);
    }
    updateDisplay();
}

void KeyboardViewController::setDisplayModel(std::unique_ptr<ExpressionWithTokenArray> buffer) {
    const auto former = m_editor.exchangeLine(std::move(buffer)); // the view still shows it
    endPressCounts();
    if (m_view) {
        m_view->setDisplayModel(displayModel());
    }
    updateDisplay();
}

void KeyboardViewController::createDisplayModel() {
    if (!displayModel() && m_mode.tallKey != TallKeyAction::StoresInequality) {
        setDisplayModel(std::make_unique<ExpressionWithTokenArray>());
    }
}

void KeyboardViewController::setScreen(KeyboardScreen* screen) {
    m_screen = screen;
    if (m_table) {
        m_table->setScreen(screen);
    }
}

KeyboardView& KeyboardViewController::keyboardView() {
    loadViewIfNeeded();
    return *m_view;
}

// The life of the screen.

void KeyboardViewController::viewDidLoad() {
    m_view = std::make_unique<KeyboardView>(*this);
    m_view->setTarget(m_target);
    m_view->setEnteringWhichEquation(m_enteringWhichEquation);
    m_view->setDisplayModel(displayModel());
    m_view->setDisplayTableView(m_table.get());
    CalculatorLabel& label = m_view->currentEntryLabel();
    label.onUpdate = [this](bool edited) {
        if (edited) {
            m_editor.lineChangedElsewhere();
            endPressCounts();
            keepHalfTypedLine();
        }
        updateDisplay();
    };
    label.onMenuChanged = [this] {
        if (m_screen) {
            m_screen->showEntry();
            m_screen->showEditMenu(m_view->currentEntryLabel().showsMenu());
        }
    };
    m_view->createSubviews();
    scrollHistoryToEnd();
}

void KeyboardViewController::viewWillAppear(bool animated) {
    ViewController::viewWillAppear(animated);
    if (m_mode.isCalculator()) {
        Model::m().setUnitConverterIsPushed(false);
    }
    // Settings may have changed meanwhile: keys, fonts, and how results are written.
    if (m_view) {
        rebuildSubviews(false);
        updateDisplay();
    }
}

bool KeyboardViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

void KeyboardViewController::willAnimateRotation(Orientation to) {
    ViewController::willAnimateRotation(to);
    rebuildSubviews(true);
}

void KeyboardViewController::didRotate(Orientation from) {
    ViewController::didRotate(from);
    rebuildSubviews(false);
}

void KeyboardViewController::rebuildSubviews(bool always) {
    if (!m_view) {
        return;
    }
    if (always) {
        m_view->createSubviews();
    } else if (!m_view->createSubviewsIfNeeded()) {
        m_view->layoutSubviews();
    }
    reloadHistory();
}

void KeyboardViewController::reloadHistory() {
    if (m_table) {
        m_table->reloadTableView();
    }
}

void KeyboardViewController::scrollHistoryToEnd() {
    if (m_table) {
        m_table->scrollToEndAnimated(false);
    }
}

void KeyboardViewController::updateDisplay() {
    if (m_view) {
        m_view->updateDisplay();
    }
}

void KeyboardViewController::lineEdited() {
    keepHalfTypedLine();
    updateDisplay();
}

void KeyboardViewController::keepHalfTypedLine() {
    if (m_mode.isCalculator() && displayModel()) {
        Model::m().setHalfTypedLine({displayModel()->tokenArray(), m_editor.place()});
    }
}

void KeyboardViewController::takeUpHalfTypedLine() {
    if (!m_mode.isCalculator() || !displayModel()) {
        return;
    }
    const HalfTypedLine& line = Model::m().halfTypedLine();
    m_editor.replaceWith(line.tokens, line.place);
    m_editor.lineChangedElsewhere(); // another run's steps are not kept
    updateDisplay();
}

// Presses.

void KeyboardViewController::buttonPressedPre(CalculatorButton& button) {
    if (m_lastButtonPressed && m_lastButtonPressed.get() != &button) {
        m_lastButtonPressed->reset();
    }
    m_previousButtonPressed = std::exchange(m_lastButtonPressed, button.shared_from_this());
    m_editor.beginStep();
    playClick();
}

void KeyboardViewController::buttonPressedPost(CalculatorButton& /*button*/) {
    m_editor.endStep();
    lineEdited();
}

void KeyboardViewController::playClick() const {
    const Model& model = Model::m();
    if (model.soundIsOn()) {
        StaticObjectManager::shared().playSound("click", model.soundVolume());
    }
}

void KeyboardViewController::endPressCounts() {
    if (m_lastButtonPressed) {
        m_lastButtonPressed->reset();
    }
    m_lastButtonPressed = nullptr;
    m_previousButtonPressed = nullptr;
    m_nClears = 0;
}

void KeyboardViewController::buttonPressed(CalculatorButton& button) {
    const std::string title = button.titleString();
    const bool isEquals = m_view && m_view->equalsButton().get() == &button;
    if (isEquals && title != ")") {
        equalsButtonPressed();
    } else if (title == "del") {
        deleteAtCursor();
    } else if (InequalityTokens::isInequalitySign(title)) {
        inequalityButtonPressed(button);
    } else {
        buttonPressedWithText(title);
    }
}

void KeyboardViewController::buttonPressedWithText(const std::string& text) {
    if (!m_editor.extendName(text) && finishTypedName()) {
        m_editor.insertText(text);
    }
}

void KeyboardViewController::deleteAtCursor() { m_editor.deleteBackward(); }

void KeyboardViewController::leftButtonPressed() { m_editor.moveCursor(-1); }

void KeyboardViewController::rightButtonPressed() { m_editor.moveCursor(1); }

void KeyboardViewController::clearDisplayData() { m_editor.clear(); }

void KeyboardViewController::clearButtonPressed() {
    if (m_previousButtonPressed != m_lastButtonPressed) {
        m_nClears = 0;
    }
    if (++m_nClears == kClearsThatEraseTheHistory) {
        // An editor has no history on screen, so clearing its line often must not erase one.
        if (m_mode.isCalculator()) {
            eraseHistory();
        }
        m_nClears = 0;
    }
    clearDisplayData();
    updateDisplay();
}

void KeyboardViewController::eraseHistory() {
    const bool hadRows = m_erased.erase(Model::m().history());
    reloadHistory();
    if (hadRows && m_screen) {
        m_screen->offerUndo("The history has been cleared.", ErasedHistory::kSecondsKept);
    }
}

void KeyboardViewController::bringHistoryBack() {
    if (m_erased.bringBack(Model::m().history())) {
        reloadHistory();
        scrollHistoryToEnd();
    }
}

void KeyboardViewController::removeButtonPressed() {
    const ActionScope action;
    endPressCounts();
    clearButtonPressed();
    equalsButtonPressed();
}

void KeyboardViewController::sqrtButtonPressed() {
    buttonPressedWithText("sqrt(");
    updateDisplay();
}

void KeyboardViewController::inequalityButtonPressed(CalculatorButton& button) {
    if (displayModel()) {
        displayModel()->setInequalityTypeWithToken(Token(button.titleString()));
    }
}

// Screens that keys open.

void KeyboardViewController::functionButtonPressed() {
    // A list without a variable, such as the constants, is edited in the same mode but defines none.
    const bool hasVariable = !m_target || !m_target->variableNameString().empty();
    openFunctionList(navigationController(), "Functions", m_mode.functionsMayUseVariable && hasVariable);
}

void KeyboardViewController::constantButtonPressed() {
    openFunctionList(navigationController(), "Constants", false);
}

void KeyboardViewController::trigButtonPressed() {
    openFunctionList(navigationController(), "TrigFunctions", false);
}

void KeyboardViewController::unitsButtonPressed() {
    if (openUnitConverter(navigationController()) && m_mode.isCalculator()) {
        Model::m().setUnitConverterIsPushed(true);
    }
}

// Choices that come back from them, and taps on the history. Nothing that was chosen is lost, nor are letters
// that wait in the line: those that spell no name yet go on waiting behind it, with a notice.

void KeyboardViewController::functionSelected(const std::string& text) {
    edit([&](LineEditor& editor) {
        const std::string reason = editor.finishName();
        editor.insertText(text);
        return reason;
    });
}

void KeyboardViewController::namedExpressionSelected(TokenElement token) {
    edit([&](LineEditor& editor) {
        const std::string reason = editor.finishName();
        editor.insertElements({std::move(token)});
        return reason;
    });
}

void KeyboardViewController::numberEntered(ComplexValue value) {
    namedExpressionSelected(std::shared_ptr<const Expression>(std::make_shared<Number>(value)));
}

void KeyboardViewController::insertANS() {
    m_editor.insertLastAnswer();
    updateDisplay();
}

void KeyboardViewController::displayTableViewButtonPressed(const Notification& notification) {
    const KeyedUnarchiver info(notification.userInfo);
    const auto row = info.integer("row");
    if (!row || !finishTypedName()) {
        return;
    }
    endPressCounts();
    const int index = static_cast<int>(*row) - m_table->nTipCells();
    const ExpressionWithTokenArray* entry = Model::m().history().entryAtIndex(index);
    if (entry && info.boolean("left").value_or(false)) {
        m_editor.insertElements(entry->tokenArray());
    } else if (entry) {
        numberEntered(entry->resultValue());
    }
    lineEdited();
}

// The tall key.

void KeyboardViewController::parenEqualsButtonPressed(CalculatorButton& button) {
    if (button.titleString() == ")") {
        buttonPressedWithText(")");
    } else {
        equalsButtonPressed();
    }
}

void KeyboardViewController::equalsButtonPressed() {
    // Saving closes the screen, which must outlive this call.
    const ActionScope action;
    const ExpressionWithTokenArray* line = displayModel();
    if (!line) {
        return;
    }
    bool isStored = false;
    switch (m_mode.tallKey) {
    case TallKeyAction::AppendsToHistory:
        if (line->count() == 0) {
            return;
        }
        appendLineToHistory();
        break;
    case TallKeyAction::StoresInequality:
        isStored = storeInequality(*line, m_enteringWhichEquation);
        break;
    case TallKeyAction::StoresEquation:
        isStored = storeEquation(*line, m_target, m_enteringWhichEquation);
        break;
    }
    if (isStored) {
        leaveScreen();
    } else if (const auto token = firstUnreadableToken(displayModel()->tokenArray())) {
        m_editor.moveCursorTo(static_cast<int>(*token)); // where to mend it
    }
    scrollHistoryToEnd();
    updateDisplay();
}

void KeyboardViewController::appendLineToHistory() {
    appendToHistory(*displayModel());
    m_editor.startNewLine();
    m_recall.forget();
    keepHalfTypedLine();
    reloadHistory();
    scrollHistoryToEnd();
}

void KeyboardViewController::leaveScreen() {
    if (NavigationController* stack = navigationController()) {
        stack->pop(true);
    }
}

// Other inputs.

void KeyboardViewController::edit(const std::function<std::string(LineEditor&)>& change) {
    endPressCounts();
    playClick();
    std::string reason;
    {
        const LineStepScope step(m_editor);
        reason = change(m_editor);
    }
    lineEdited();
    showNotice(reason);
}

void KeyboardViewController::editBehindNames(const std::function<void(LineEditor&)>& change) {
    edit([&](LineEditor& editor) {
        std::string reason = editor.finishName();
        if (reason.empty()) {
            change(editor);
        }
        return reason;
    });
}

bool KeyboardViewController::hardwareKey(std::string_view key) {
    const ActionScope action;
    loadViewIfNeeded();
    return HardwareKeyboard(*this).press(key);
}

void KeyboardViewController::undo() {
    edit([](LineEditor& editor) {
        return editor.undo() ? std::string() : "There is nothing to undo in this line.";
    });
}

void KeyboardViewController::redo() {
    edit([](LineEditor& editor) {
        return editor.redo() ? std::string() : "There is nothing to redo in this line.";
    });
}

bool KeyboardViewController::canPaste() {
    const Pasteboard& pasteboard = generalPasteboard();
    return pasteboard.data(kTokenArrayPasteboardType) || !pasteboard.text().value_or("").empty();
}

void KeyboardViewController::paste() {
    editBehindNames([](LineEditor&) {}); // letters that cannot be read would stand amid what is pasted
    if (!typedName().empty()) {
        return;
    }
    edit([](LineEditor& editor) {
        const auto data = generalPasteboard().data(kTokenArrayPasteboardType);
        const auto list = data ? readPropertyList(*data) : std::nullopt;
        PastedText pasted{list ? std::optional(unarchivedTokenArray(*list)) : std::nullopt, {}};
        if (!pasted.tokens || pasted.tokens->empty()) {
            pasted = readPastedText(generalPasteboard().text().value_or(""), editor.names(),
                                    editor.place().cursor == 0);
        } else if (pasted.tokens->size() > kLongestPaste) {
            return std::string("What was copied is too long to be pasted into a line.");
        }
        if (pasted.tokens) {
            editor.insertElements(std::move(*pasted.tokens));
        }
        return pasted.reason;
    });
}

void KeyboardViewController::switchAngleMode() {
    Model& model = Model::m();
    model.setAngleMode(model.angleMode() == 1 ? 0 : 1);
    playClick();
    updateDisplay();
    showNotice(model.angleMode() == 1 ? "Angles are in degrees." : "Angles are in radians.");
}

bool KeyboardViewController::recallLine(int direction) {
    if (!m_mode.isCalculator() || !displayModel()) {
        return false;
    }
    if (const auto line = m_recall.move(direction, Model::m().history(),
                                        {displayModel()->tokenArray(), m_editor.place()})) {
        edit([&](LineEditor& editor) {
            editor.replaceWith(line->tokens, line->place);
            return std::string();
        });
    }
    return true;
}

bool KeyboardViewController::finishTypedName() {
    const std::string reason = m_editor.finishName();
    updateDisplay();
    showNotice(reason);
    return reason.empty();
}

bool KeyboardViewController::isReadyForPress(const CalculatorButton& button) {
    constexpr std::array<std::string_view, 3> kActOnTypedName{"clr", "del", "("};
    const std::string title = button.titleString();
    const bool isDigit = title.size() == 1 && title[0] >= '0' && title[0] <= '9';
    return isDigit || std::ranges::find(kActOnTypedName, title) != kActOnTypedName.end() || finishTypedName();
}

void KeyboardViewController::cursorTappedAt(int gap) {
    endPressCounts();
    if (finishTypedName()) {
        m_editor.moveCursorTo(gap);
    }
    lineEdited();
}

void KeyboardViewController::entryLineTapped(Point point) {
    KeyboardView& view = keyboardView();
    if (!view.currentEntryLabel().tapped() && finishTypedName()) {
        cursorTappedAt(view.tokenGapAtPoint(point));
    }
}

void KeyboardViewController::showNotice(const std::string& text) const {
    if (m_screen && !text.empty()) {
        m_screen->showNotice(text);
    }
}

} // namespace velmora
