#pragma once

#include "platform/screens/ViewController.h"

#include <memory>
#include <vector>

namespace velmora {

/// A stack of screens of which the top one shows. While the stack itself is on display, changing its top
/// runs the appear and disappear hooks; otherwise they run when it comes on display.
///
/// A screen that leaves the stack stays alive until the event being handled is over (see ActionScope), or,
/// outside any event, until other screens leave the stack. So it may close itself from its own action.
/// Its navigationController() is null as soon as it has left.
class NavigationController final : public ViewController {
public:
    /// A null root leaves the stack empty.
    explicit NavigationController(std::shared_ptr<ViewController> root = nullptr);
    ~NavigationController() override;

    std::string className() const override { return "NavigationController"; }

    /// Puts a screen on top. Null, or a screen that is in a stack already, is logged and ignored.
    void push(std::shared_ptr<ViewController> controller, bool animated = true);
    /// Takes the top screen off and returns it; null when only the root is left, which stays.
    std::shared_ptr<ViewController> pop(bool animated = true);
    /// Takes off what is above the screen. False, with nothing changed, when it is not in the stack.
    bool popTo(const ViewController& controller, bool animated = true);
    void popToRoot(bool animated = true);
    /// Exchanges the lowest screen; what is above it stays, with the title of its back button. A null or
    /// already stacked one is ignored.
    void replaceRoot(std::shared_ptr<ViewController> controller);

    /// The screen that shows; null when the stack is empty.
    std::shared_ptr<ViewController> topViewController() const;
    std::shared_ptr<ViewController> rootViewController() const;
    /// All screens, the root first.
    const std::vector<std::shared_ptr<ViewController>>& viewControllers() const { return m_stack; }
    bool contains(const ViewController& controller) const;

    /// Emitted after the stack has changed; tells whether the change is to be animated.
    Signal<bool>& stackChanged() { return m_stackChanged; }

    void viewWillAppear(bool animated) override;
    void viewDidAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;
    void viewDidDisappear(bool animated) override;
    bool shouldAutorotate(Orientation orientation) const override;
    void willAnimateRotation(Orientation to) override;
    void didRotate(Orientation from) override;

private:
    using Stack = std::vector<std::shared_ptr<ViewController>>;

    bool mayEnter(const std::shared_ptr<ViewController>& controller) const;
    void setStack(Stack stack, bool animated);

    Stack m_stack;
    Stack m_lastRemoved;
    Signal<bool> m_stackChanged;
};

} // namespace velmora
