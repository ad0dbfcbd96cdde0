#pragma once

#include "app/AutoSaver.h"
#include "platform/events/Subscription.h"
#include "platform/screens/TabBarController.h"

#include <memory>

namespace velmora {

class KeyboardViewController;

/// Starts the program and follows its life: on screen, in the background, at its end.
class VelmoraAppDelegate {
public:
    VelmoraAppDelegate();
    ~VelmoraAppDelegate();
    VelmoraAppDelegate(const VelmoraAppDelegate&) = delete;
    VelmoraAppDelegate& operator=(const VelmoraAppDelegate&) = delete;

    /// Sets up sound, registers the screens and builds the tab bar. Runs once, before anything is shown.
    void applicationDidFinishLaunching();
    /// Counts the activation, on which the tip row depends.
    void applicationDidBecomeActive();
    void applicationDidEnterBackground();
    void applicationWillTerminate();

    /// The tab bar; null before the launch.
    const std::shared_ptr<TabBarController>& tabBarController() const { return m_tabBarController; }
    /// The calculator tab's screen; null before the launch.
    const std::shared_ptr<KeyboardViewController>& calculator() const { return m_calculator; }

private:
    void keepTheSelectedTab();

    std::shared_ptr<TabBarController> m_tabBarController;
    std::shared_ptr<KeyboardViewController> m_calculator;
    AutoSaver m_saver;
    Subscription m_changes;
    Subscription m_replacements;
    Subscription m_selections;
};

} // namespace velmora
