// Hardware keys and taps on the entry line.

#include "calculator/keyboard/HardwareKeys.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/InequalityTokens.h"
#include "platform/events/ActionScope.h"

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
    case HardwareAction::Letter:
        endPressCounts();
        playClick();
        typeLetter(meaning.text);
        return true;
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
    const auto button = m_view->buttonTyping(text);
    if (button && button->titleArray().size() == 1) {
        button->pressed();
    } else {
        // A key with several titles would replace "." by "i" on the second "."; who types means the first.
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
    if (!finishTypedName()) {
        return true;
    }
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

void KeyboardViewController::cursorTappedAt(int gap) {
    endPressCounts();
    if (finishTypedName() && m_displayModel) {
        m_displayModel->moveCursorTo(gap);
    }
    updateDisplay();
}

void KeyboardViewController::entryLineTapped(Point point) {
    KeyboardView& view = keyboardView();
    if (!view.currentEntryLabel().tapped() && finishTypedName()) {
        cursorTappedAt(view.tokenGapAtPoint(point));
    }
}

} // namespace velmora
