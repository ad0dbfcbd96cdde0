// Hardware keys and taps on the entry line.

#include "calculator/HardwareKeys.h"
#include "calculator/InequalityTokens.h"
#include "calculator/KeyboardViewController.h"
#include "engine/ExpressionList.h"
#include "platform/ActionScope.h"

#include <algorithm>
#include <array>

namespace velmora {

bool KeyboardViewController::hardwareKey(std::string_view key) {
    const ActionScope action;
    loadViewIfNeeded();
    const HardwareKey meaning = hardwareKeyWithText(key);
    switch (meaning.action) {
    case HardwareAction::None:
        return false;
    case HardwareAction::Type:
        return typeHardwareText(meaning.text);
    case HardwareAction::TallKey:
        return pressKeyOfCharacter("=");
    case HardwareAction::Delete:
        return pressKeyOfCharacter("D");
    case HardwareAction::Clear:
        return pressKeyOfCharacter("C");
    case HardwareAction::Left:
        return pressKeyOfCharacter("←");
    case HardwareAction::Right:
        return pressKeyOfCharacter("→");
    case HardwareAction::DeleteForward:
        return editByHardware(&KeyboardViewController::deleteForward);
    case HardwareAction::Home:
        return editByHardware(&KeyboardViewController::moveCursorHome);
    case HardwareAction::End:
        return editByHardware(&KeyboardViewController::moveCursorToEnd);
    }
    return false;
}

bool KeyboardViewController::pressKeyOfCharacter(const std::string& character) {
    const auto button = m_view->buttonWithCharacter(character);
    if (button) {
        button->pressed();
    }
    return button != nullptr;
}

bool KeyboardViewController::typeHardwareText(const std::string& text) {
    if (InequalityTokens::isInequalitySign(text)) {
        return m_entering == kEnteringInequality && pressKeyOfCharacter(text);
    }
    constexpr std::array<std::string_view, 4> kVariables{"x", "y", "t", "θ"};
    if (std::ranges::find(kVariables, text) != kVariables.end() && !definesVariable(text)) {
        return false;
    }
    const auto button = m_view->buttonTyping(text);
    if (button && button->titleArray().size() == 1) {
        button->pressed();
    } else {
        // A key with several titles would replace "x" by "π" on the second "x"; who types means the letter.
        typeWithoutKey(text);
    }
    return true;
}

void KeyboardViewController::typeWithoutKey(const std::string& text) {
    endPressCounts();
    playClick();
    buttonPressedWithText(text);
    updateDisplay();
}

bool KeyboardViewController::editByHardware(void (KeyboardViewController::*edit)()) {
    endPressCounts();
    playClick();
    (this->*edit)();
    updateDisplay();
    return true;
}

void KeyboardViewController::moveCursorHome() {
    if (m_displayModel) {
        m_displayModel->moveCursorTo(0);
    }
}

void KeyboardViewController::moveCursorToEnd() {
    if (m_displayModel) {
        m_displayModel->moveCursorTo(m_displayModel->count());
    }
}

void KeyboardViewController::deleteForward() {
    if (m_displayModel && m_displayModel->cursorPosition() < m_displayModel->count()) {
        m_displayModel->moveCursor(1);
        m_displayModel->deleteAtCursor();
    }
}

bool KeyboardViewController::definesVariable(std::string_view name) const {
    switch (m_entering) {
    case kEnteringCalculatorLine:
        return false;
    case kEnteringInequality:
    case kEnteringImpliedFunction:
        return name == "x" || name == "y";
    default:
        break;
    }
    if (m_target) {
        const std::vector<std::string> names = m_target->variableNameArray();
        return std::ranges::find(names, name) != names.end();
    }
    return false;
}

void KeyboardViewController::cursorTappedAt(int gap) {
    endPressCounts();
    if (m_displayModel) {
        m_displayModel->moveCursorTo(gap);
    }
    updateDisplay();
}

void KeyboardViewController::entryLineTapped(Point point) {
    KeyboardView& view = keyboardView();
    if (!view.currentEntryLabel().tapped()) {
        cursorTappedAt(view.tokenGapAtPoint(point));
    }
}

} // namespace velmora
