#include "platform/screens/ViewController.h"

#include "platform/events/ActionScope.h"

#include <utility>

namespace velmora {

template <class Value> void ViewController::change(Value& member, Value value) {
    if (member != value) {
        member = std::move(value);
        m_changed.emit();
    }
}

void ViewController::setTitle(std::string title) { change(m_title, std::move(title)); }
void ViewController::setTabTitle(std::string title) { change(m_tabTitle, std::move(title)); }
void ViewController::setTabImage(std::string image) { change(m_tabImage, std::move(image)); }
void ViewController::setBackButtonTitle(std::string title) { change(m_backButtonTitle, std::move(title)); }
void ViewController::setHidesNavigationBar(bool hides) { change(m_hidesNavigationBar, hides); }

void ViewController::setRightBarButtons(std::vector<BarButton> buttons) {
    m_rightBarButtons = std::move(buttons);
    m_changed.emit();
}

void ViewController::setLeftBarButtons(std::vector<BarButton> buttons) {
    m_leftBarButtons = std::move(buttons);
    m_changed.emit();
}

bool ViewController::press(const std::vector<BarButton>& buttons, std::size_t index) {
    if (index >= buttons.size() || !buttons[index].enabled) {
        return false;
    }
    const ActionScope scope;
    // A copy, since the action may exchange the buttons.
    if (const auto action = buttons[index].action) {
        action();
    }
    return true;
}

bool ViewController::pressRightBarButton(std::size_t index) { return press(m_rightBarButtons, index); }
bool ViewController::pressLeftBarButton(std::size_t index) { return press(m_leftBarButtons, index); }

bool ViewController::shouldAutorotate(Orientation) const { return true; }

void ViewController::loadViewIfNeeded() {
    if (!std::exchange(m_viewLoaded, true)) {
        viewDidLoad();
    }
}

void ViewController::beginAppearing(bool animated) {
    if (!isVisible()) {
        m_phase = Phase::Appearing;
        loadViewIfNeeded();
        viewWillAppear(animated);
    }
}

void ViewController::endAppearing(bool animated) {
    if (m_phase == Phase::Appearing) {
        m_phase = Phase::Visible;
        viewDidAppear(animated);
    }
}

void ViewController::beginDisappearing(bool animated) {
    if (isVisible()) {
        m_phase = Phase::Disappearing;
        viewWillDisappear(animated);
    }
}

void ViewController::endDisappearing(bool animated) {
    if (m_phase == Phase::Disappearing) {
        m_phase = Phase::Hidden;
        viewDidDisappear(animated);
    }
}

void ViewController::changeVisible(ViewController* leaving, ViewController* arriving, bool animated) {
    if (leaving == arriving) {
        return;
    }
    if (leaving) {
        leaving->beginDisappearing(animated);
    }
    if (arriving) {
        arriving->beginAppearing(animated);
    }
    if (leaving) {
        leaving->endDisappearing(animated);
    }
    if (arriving) {
        arriving->endAppearing(animated);
    }
}

} // namespace velmora
