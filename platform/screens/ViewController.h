#pragma once

#include "platform/events/Signal.h"
#include "platform/machine/Device.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class NavigationController;

/// A button in the navigation bar.
struct BarButton {
    std::string title{};
    std::function<void()> action{};
    bool enabled = true;
};

/// One screen without its drawing: what it is called, what its bars show and what happens when it comes
/// and goes. What draws it listens to changed().
class ViewController {
public:
    ViewController() = default;
    virtual ~ViewController() = default;
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;

    /// The name under which the screen is registered ("UnitConvertViewController").
    virtual std::string className() const = 0;
    /// The QML file that draws the screen ("GraphScreen.qml"); empty when nothing draws it.
    virtual std::string qmlFile() const { return {}; }

    const std::string& title() const { return m_title; }
    void setTitle(std::string title);
    /// The text below the tab; the title while none is set.
    const std::string& tabTitle() const { return m_tabTitle.empty() ? m_title : m_tabTitle; }
    void setTabTitle(std::string title);
    /// The name of the tab's image ("calculator.png").
    const std::string& tabImage() const { return m_tabImage; }
    void setTabImage(std::string image);
    /// The text of the button that leads back to this screen; its title while none is set.
    const std::string& backButtonTitle() const {
        return m_backButtonTitle.empty() ? m_title : m_backButtonTitle;
    }
    void setBackButtonTitle(std::string title);

    /// Whether the navigation bar is hidden while this screen is on top.
    bool hidesNavigationBar() const { return m_hidesNavigationBar; }
    void setHidesNavigationBar(bool hides);

    /// The buttons at the right of the navigation bar, from the left; and one in place of the back button.
    const std::vector<BarButton>& rightBarButtons() const { return m_rightBarButtons; }
    void setRightBarButtons(std::vector<BarButton> buttons);
    const std::vector<BarButton>& leftBarButtons() const { return m_leftBarButtons; }
    void setLeftBarButtons(std::vector<BarButton> buttons);
    /// Presses a button as the user would. False when there is none at the index or it is disabled.
    bool pressRightBarButton(std::size_t index);
    bool pressLeftBarButton(std::size_t index);

    /// How far the screen was scrolled when another one took its place, in points.
    double scrollPosition() const { return m_scrollPosition; }
    void setScrollPosition(double position) { m_scrollPosition = position; }

    /// The stack that holds this screen; null while it is in none.
    NavigationController* navigationController() const { return m_navigationController; }

    /// Emitted when a title, an image, a bar button or the hiding of the bar has changed.
    Signal<>& changed() { return m_changed; }

    // Hooks, for the screen to override. viewDidLoad runs once, before the screen appears for the first
    // time; a hook may itself push, pop or select.
    virtual void viewDidLoad() {}
    virtual void viewWillAppear(bool animated) { static_cast<void>(animated); }
    virtual void viewDidAppear(bool animated) { static_cast<void>(animated); }
    virtual void viewWillDisappear(bool animated) { static_cast<void>(animated); }
    virtual void viewDidDisappear(bool animated) { static_cast<void>(animated); }

    /// Whether the scene may be turned to the orientation while this screen shows.
    virtual bool shouldAutorotate(Orientation orientation) const;
    /// Called before the scene turns (or the device changes), and after it has.
    virtual void willAnimateRotation(Orientation to) { static_cast<void>(to); }
    virtual void didRotate(Orientation from) { static_cast<void>(from); }

    /// Runs viewDidLoad unless it has run.
    void loadViewIfNeeded();
    bool isViewLoaded() const { return m_viewLoaded; }
    /// Whether the screen is on display, or about to be.
    bool isVisible() const { return m_phase == Phase::Appearing || m_phase == Phase::Visible; }

    /// Brings the outermost screen on display or takes it off, with all hooks.
    void appear(bool animated = false) { changeVisible(nullptr, this, animated); }
    void disappear(bool animated = false) { changeVisible(this, nullptr, animated); }

    /// Exchanges what is on display; either may be null. The order of the hooks: leaving will disappear,
    /// arriving will appear, leaving did disappear, arriving did appear. When a hook changes what is on
    /// display again, the rest of this exchange is left out, so every "will" has exactly one "did".
    static void changeVisible(ViewController* leaving, ViewController* arriving, bool animated);

private:
    // Stacks of screens pass on each step of their own coming and going.
    friend class NavigationController;
    friend class TabBarController;
    enum class Phase { Hidden, Appearing, Visible, Disappearing };

    // Each step does nothing unless it is the next one in turn.
    void beginAppearing(bool animated);
    void endAppearing(bool animated);
    void beginDisappearing(bool animated);
    void endDisappearing(bool animated);
    template <class Value> void change(Value& member, Value value);
    static bool press(const std::vector<BarButton>& buttons, std::size_t index);

    std::string m_title;
    std::string m_tabTitle;
    std::string m_tabImage;
    std::string m_backButtonTitle;
    bool m_hidesNavigationBar = false;
    std::vector<BarButton> m_rightBarButtons;
    std::vector<BarButton> m_leftBarButtons;
    double m_scrollPosition = 0;
    NavigationController* m_navigationController = nullptr;
    Signal<> m_changed;
    bool m_viewLoaded = false;
    Phase m_phase = Phase::Hidden;
};

} // namespace velmora
