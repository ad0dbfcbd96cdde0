#include "calculator/keyboard/CalculatorButton.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "platform/events/ActionScope.h"

#include <algorithm>

namespace velmora {

std::shared_ptr<CalculatorButton> CalculatorButton::newButton(const Rect& frame) {
    return std::make_shared<CalculatorButton>(frame);
}

void CalculatorButton::setTitleString(const std::string& title) {
    m_titleArray.clear();
    std::size_t start = 0;
    for (std::size_t blank = title.find(' '); blank != std::string::npos; blank = title.find(' ', start)) {
        m_titleArray.push_back(title.substr(start, blank - start));
        start = blank + 1;
    }
    m_titleArray.push_back(title.substr(start));
}

std::string CalculatorButton::titleString() const {
    std::string joined;
    const char* separator = "";
    for (const std::string& title : m_titleArray) {
        joined += separator + title;
        separator = " ";
    }
    return joined;
}

void CalculatorButton::pressed() {
    if (!m_controller) {
        return;
    }
    // The press may close the screen that owns this key.
    const ActionScope action;
    const auto keepAlive = shared_from_this();
    KeyboardViewController& controller = *m_controller;
    if (!controller.isReadyForPress(*this)) {
        return;
    }

    controller.buttonPressedPre(*this);
    if (m_customSelector) {
        m_customSelector(controller, *this);
    } else if (!m_titleArray.empty()) {
        const int titles = static_cast<int>(m_titleArray.size());
        const int next = std::min(m_pressCount, titles - 1);
        if (next >= 1) {
            sendDeleteMessageToController();
        }
        sendTextMessageToControllerWithText(m_titleArray[static_cast<std::size_t>(next)]);
    }
    if (++m_pressCount >= static_cast<int>(m_titleArray.size())) {
        reset();
    }
    controller.buttonPressedPost(*this);
}

void CalculatorButton::sendTextMessageToControllerWithText(const std::string& text) {
    if (m_controller) {
        m_controller->buttonPressedWithText(text);
    }
}

void CalculatorButton::sendDeleteMessageToController() {
    if (m_controller) {
        m_controller->deleteAtCursor();
    }
}

} // namespace velmora
