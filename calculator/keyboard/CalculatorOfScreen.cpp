#include "calculator/keyboard/CalculatorOfScreen.h"

#include "calculator/keyboard/EditingMode.h"
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

NavigationController* stackOfCalculatorTab() {
    const auto tabBar = Model::m().tabBarController();
    const auto tab =
        tabBar && !tabBar->viewControllers().empty() ? tabBar->viewControllers().front() : nullptr;
    return dynamic_cast<NavigationController*>(tab.get());
}

} // namespace

bool returnToCalculator(NavigationController* stack,
                        const std::function<void(KeyboardViewController&)>& insert) {
    if (const auto below = highestCalculatorIn(stack)) {
        insert(*below);
        stack->popTo(*below);
        return true;
    }
    NavigationController* calculatorTab = stackOfCalculatorTab();
    const auto calculator = highestCalculatorIn(calculatorTab);
    if (!calculator) {
        return false;
    }
    Model::m().tabBarController()->setSelectedIndex(0);
    insert(*calculator);
    calculatorTab->popTo(*calculator);
    return true;
}

std::vector<std::string> variablesOfCalculatorLine(const NavigationController* stack) {
    const auto below = highestCalculatorIn(stack);
    const auto calculator = below ? below : highestCalculatorIn(stackOfCalculatorTab());
    return calculator ? variablesOfLine(editingMode(calculator->entering()), calculator->target())
                      : std::vector<std::string>();
}

} // namespace velmora
