#include "calculator/keyboard/CalculatorOfScreen.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/TabBarController.h"

namespace velmora {

namespace {

std::shared_ptr<KeyboardViewController> highestCalculatorIn(const NavigationController* stack) {
    if (!stack) {
        return nullptr;
    }
    const auto& screens = stack->viewControllers();
    for (auto screen = screens.rbegin(); screen != screens.rend(); ++screen) {
        if (auto calculator = std::dynamic_pointer_cast<KeyboardViewController>(*screen)) {
            return calculator;
        }
    }
    return nullptr;
}

} // namespace

bool returnToCalculator(NavigationController* stack,
                        const std::function<void(KeyboardViewController&)>& insert) {
    if (const auto below = highestCalculatorIn(stack)) {
        insert(*below);
        stack->popTo(*below);
        return true;
    }
    const auto tabBar = Model::m().tabBarController();
    const auto tab =
        tabBar && !tabBar->viewControllers().empty() ? tabBar->viewControllers().front() : nullptr;
    auto* calculatorTab = dynamic_cast<NavigationController*>(tab.get());
    const auto calculator = highestCalculatorIn(calculatorTab);
    if (!calculator) {
        return false;
    }
    tabBar->setSelectedIndex(0);
    insert(*calculator);
    calculatorTab->popTo(*calculator);
    return true;
}

} // namespace velmora
