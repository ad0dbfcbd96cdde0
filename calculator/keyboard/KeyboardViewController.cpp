#include "calculator/keyboard/KeyboardViewController.h"

#include "calculator/history/DisplayHistoryTableViewController.h"
#include "calculator/keyboard/KeyboardScreen.h"
#include "calculator/model/InequalityTokens.h"
#include "calculator/model/Model.h"
#include "platform/events/ActionScope.h"
#include "platform/machine/StaticObjectManager.h"
#include "platform/screens/NavigationController.h"
#include "platform/text/Utf8.h"

#include <utility>

namespace velmora {

namespace {

constexpr int kClearsThatEraseTheHistory = 3;

} // namespace

KeyboardViewController::KeyboardViewController(int entering) : m_entering(entering) {
    setTabImage("alpha image.png");
    if (m_entering == kEnteringInequality) {
        m_displayModel = std::make_unique<InequalityTokens>();
    } else {
        m_displayModel = std::make_unique<ExpressionWithTokenArray>();
    }
    if (m_entering == kEnteringCalculatorLine) {
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
    const auto former = std::exchange(m_displayModel, std::move(buffer));
    endPressCounts();
    m_typedName.clear();
    if (m_view) {
        m_view->setDisplayModel(m_displayModel.get());
    }
    updateDisplay();
}

void KeyboardViewController::createDisplayModel() {
    if (!m_displayModel && m_entering != kEnteringInequality) {
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
    m_view->setEntering(m_entering);
    m_view->setTarget(m_target);
    m_view->setEnteringWhichEquation(m_enteringWhichEquation);
    m_view->setDisplayModel(m_displayModel.get());
    m_view->setDisplayTableView(m_table.get());
    CalculatorLabel& label = m_view->currentEntryLabel();
    label.onUpdate = [this](bool edited) {
        if (edited) {
            endPressCounts();
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
    if (m_entering == kEnteringCalculatorLine) {
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

// Presses.

void KeyboardViewController::buttonPressedPre(CalculatorButton& button) {
    if (m_lastButtonPressed && m_lastButtonPressed.get() != &button) {
        m_lastButtonPressed->reset();
    }
    m_previousButtonPressed = std::exchange(m_lastButtonPressed, button.shared_from_this());
    playClick();
}

void KeyboardViewController::buttonPressedPost(CalculatorButton& /*button*/) { updateDisplay(); }

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

void KeyboardViewController::deleteAtCursor() {
    if (!m_typedName.empty()) {
        m_typedName = dropLast(m_typedName);
    } else if (m_displayModel) {
        m_displayModel->deleteAtCursor();
    }
}

void KeyboardViewController::leftButtonPressed() {
    if (m_displayModel) {
        m_displayModel->moveCursor(-1);
    }
}

void KeyboardViewController::rightButtonPressed() {
    if (m_displayModel) {
        m_displayModel->moveCursor(1);
    }
}

void KeyboardViewController::clearDisplayData() {
    m_typedName.clear();
    if (m_displayModel) {
        m_displayModel->reset();
    }
}

void KeyboardViewController::clearButtonPressed() {
    if (m_previousButtonPressed != m_lastButtonPressed) {
        m_nClears = 0;
    }
    if (++m_nClears == kClearsThatEraseTheHistory) {
        // An editor has no history on screen, so clearing its line often must not erase one.
        if (m_entering == kEnteringCalculatorLine) {
            Model::m().history().reset();
            reloadHistory();
        }
        m_nClears = 0;
    }
    clearDisplayData();
    updateDisplay();
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
    if (m_displayModel) {
        m_displayModel->setInequalityTypeWithToken(Token(button.titleString()));
    }
}

void KeyboardViewController::parenEqualsButtonPressed(CalculatorButton& button) {
    if (button.titleString() == ")") {
        buttonPressedWithText(")");
    } else {
        equalsButtonPressed();
    }
}

// The tall key.

void KeyboardViewController::equalsButtonPressed() {
    // Saving closes the screen, which must outlive this call.
    const ActionScope action;
    if (!m_displayModel) {
        return;
    }
    switch (m_entering) {
    case kEnteringCalculatorLine:
        if (m_displayModel->count() == 0) {
            return;
        }
        appendLineToHistory();
        break;
    case kEnteringInequality:
        saveInequality();
        break;
    default:
        saveEquation();
        break;
    }
    scrollHistoryToEnd();
    updateDisplay();
}

void KeyboardViewController::appendLineToHistory() {
    ExpressionList& history = Model::m().history();
    history.addExpressionTokenArray(m_displayModel->tokenArray());
    if (ExpressionWithTokenArray* row = history.entryAtIndex(history.nExpressions() - 1)) {
        row->keepResult();
    }
    m_displayModel->reset();
    reloadHistory();
    scrollHistoryToEnd();
}

void KeyboardViewController::leaveScreen() {
    if (NavigationController* stack = navigationController()) {
        stack->pop(true);
    }
}

} // namespace velmora
