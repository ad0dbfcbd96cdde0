#include "app/VelmoraAppDelegate.h"

#include "app/Registrations.h"
#include "calculator/KeyboardViewController.h"
#include "calculator/Model.h"
#include "platform/Log.h"
#include "platform/NavigationController.h"
#include "platform/SavingRegistry.h"
#include "platform/Sound.h"
#include "platform/StaticObjectManager.h"

#include <cstdlib>

namespace velmora {

namespace {

void prepareSound() {
    // Key clicks mix with what other programs play.
    soundPlayer().setCategory("AVAudioSessionCategoryAmbient");
    // The saved settings are not loaded yet, so at a launch this sees the default, off, and the click is
    // loaded when it is first played. Intended: a start never waits for a sound.
    if (Model::m().soundIsOn()) {
        StaticObjectManager::shared().preloadSound("click");
    }
}

void warnOfMemoryDebugging() {
    if (std::getenv("NSZombieEnabled") || std::getenv("NSAutoreleaseFreedObjectCheckEnabled")) {
        log("NSZombieEnabled/NSAutoreleaseFreedObjectCheckEnabled enabled!");
    }
}

/// A tab: the screen inside a stack of its own.
std::shared_ptr<ViewController> newTab(const std::shared_ptr<ViewController>& root, const char* title,
                                       const char* image) {
    root->setTitle(title);
    root->setTabImage(image);
    auto stack = std::make_shared<NavigationController>(root);
    stack->setTitle(title);
    stack->setTabImage(image);
    return stack;
}

} // namespace

VelmoraAppDelegate::VelmoraAppDelegate() = default;

VelmoraAppDelegate::~VelmoraAppDelegate() = default;

void VelmoraAppDelegate::applicationDidFinishLaunching() {
    prepareSound();
    warnOfMemoryDebugging();
    registerEverything();

    m_tabBarController = std::make_shared<TabBarController>();
    m_calculator = std::make_shared<KeyboardViewController>(kEnteringCalculatorLine);
    m_tabBarController->setViewControllers({newTab(m_calculator, "Calculator", "calculator.png")});
    Model::m().setTabBarController(m_tabBarController);
    if (Model::m().unitConverterIsPushed()) {
        m_calculator->unitsButtonPressed();
    }
}

void VelmoraAppDelegate::applicationDidBecomeActive() {
    Model& model = Model::m();
    model.setNHasBecomeActive(model.nHasBecomeActive() + 1);
    // The tip row may have come or gone, and taps are told by the row's number.
    if (m_calculator) {
        m_calculator->reloadHistory();
    }
}

void VelmoraAppDelegate::applicationDidEnterBackground() { SavingRegistry::shared().saveAll(); }

void VelmoraAppDelegate::applicationWillTerminate() { SavingRegistry::shared().saveAll(); }

} // namespace velmora
