#include "platform/screens/NavigationController.h"

#include "platform/events/ActionScope.h"
#include "platform/text/Log.h"

#include <algorithm>
#include <utility>

namespace velmora {

NavigationController::NavigationController(std::shared_ptr<ViewController> root) {
    if (mayEnter(root)) {
        root->m_navigationController = this;
        m_stack.push_back(std::move(root));
    }
}

NavigationController::~NavigationController() {
    for (const auto& controller : m_stack) {
        controller->m_navigationController = nullptr; // it may outlive the stack
    }
}

void NavigationController::push(std::shared_ptr<ViewController> controller, bool animated) {
    if (!mayEnter(controller)) {
        log("a screen that is nothing or in a stack already cannot be pushed");
        return;
    }
    Stack stack = m_stack;
    stack.push_back(std::move(controller));
    setStack(std::move(stack), animated);
}

std::shared_ptr<ViewController> NavigationController::pop(bool animated) {
    if (m_stack.size() < 2) {
        return nullptr;
    }
    std::shared_ptr<ViewController> top = m_stack.back();
    setStack(Stack(m_stack.begin(), m_stack.end() - 1), animated);
    return top;
}

bool NavigationController::popTo(const ViewController& controller, bool animated) {
    const auto found =
        std::ranges::find_if(m_stack, [&](const auto& candidate) { return candidate.get() == &controller; });
    if (found == m_stack.end()) {
        return false;
    }
    if (found + 1 != m_stack.end()) {
        setStack(Stack(m_stack.begin(), found + 1), animated);
    }
    return true;
}

void NavigationController::popToRoot(bool animated) {
    if (m_stack.size() > 1) {
        setStack(Stack(m_stack.begin(), m_stack.begin() + 1), animated);
    }
}

void NavigationController::replaceRoot(std::shared_ptr<ViewController> controller) {
    if (!mayEnter(controller)) {
        // Setting the present root again is an ordinary wish that changes nothing.
        if (!controller || controller != rootViewController()) {
            log("a screen that is nothing or in a stack already cannot become the root");
        }
        return;
    }
    Stack stack = m_stack;
    if (stack.empty()) {
        stack.push_back(std::move(controller));
    } else {
        // Whatever lies above keeps its way back under the name it was opened with, such as "Cancel".
        if (stack.size() > 1) {
            controller->setBackButtonTitle(stack.front()->m_backButtonTitle);
        }
        stack.front() = std::move(controller);
    }
    setStack(std::move(stack), false);
}

std::shared_ptr<ViewController> NavigationController::topViewController() const {
    return m_stack.empty() ? nullptr : m_stack.back();
}

std::shared_ptr<ViewController> NavigationController::rootViewController() const {
    return m_stack.empty() ? nullptr : m_stack.front();
}

bool NavigationController::contains(const ViewController& controller) const {
    return std::ranges::any_of(m_stack, [&](const auto& member) { return member.get() == &controller; });
}

bool NavigationController::mayEnter(const std::shared_ptr<ViewController>& controller) const {
    return controller && controller.get() != this && !controller->m_navigationController;
}

void NavigationController::setStack(Stack stack, bool animated) {
    const Stack former = std::exchange(m_stack, std::move(stack));
    for (const auto& controller : m_stack) {
        controller->m_navigationController = this;
    }
    Stack removed;
    for (const auto& controller : former) {
        if (!contains(*controller)) {
            controller->m_navigationController = nullptr;
            if (!keepUntilActionEnds(controller)) {
                removed.push_back(controller);
            }
        }
    }
    const auto formerTop = former.empty() ? nullptr : former.back();
    const auto newTop = topViewController();
    if (isVisible()) {
        changeVisible(formerTop.get(), newTop.get(), animated);
    } else if (formerTop && formerTop != newTop) {
        formerTop->endDisappearing(animated); // the stack was changed while going off display
    }
    m_stackChanged.emit(animated);
    if (!removed.empty()) {
        // What left earlier goes now, once no member is touched any more: its end may change the stack.
        const Stack released = std::exchange(m_lastRemoved, std::move(removed));
    }
}

void NavigationController::viewWillAppear(bool animated) {
    if (const auto top = topViewController()) {
        top->beginAppearing(animated);
    }
}

void NavigationController::viewDidAppear(bool animated) {
    if (const auto top = topViewController()) {
        top->endAppearing(animated);
    }
}

void NavigationController::viewWillDisappear(bool animated) {
    if (const auto top = topViewController()) {
        top->beginDisappearing(animated);
    }
}

void NavigationController::viewDidDisappear(bool animated) {
    if (const auto top = topViewController()) {
        top->endDisappearing(animated);
    }
}

bool NavigationController::shouldAutorotate(Orientation orientation) const {
    // Those below are seen again after the next pop, and must not find the scene turned against their will.
    return std::ranges::all_of(
        m_stack, [&](const auto& controller) { return controller->shouldAutorotate(orientation); });
}

void NavigationController::willAnimateRotation(Orientation to) {
    if (const auto top = topViewController()) {
        top->willAnimateRotation(to);
    }
}

void NavigationController::didRotate(Orientation from) {
    if (const auto top = topViewController()) {
        top->didRotate(from);
    }
}

} // namespace velmora
