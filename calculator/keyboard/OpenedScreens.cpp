#include "calculator/keyboard/OpenedScreens.h"

#include "calculator/keyboard/FunctionListScreen.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/text/Log.h"

namespace velmora {

void openFunctionList(NavigationController* stack, const std::string& listName, bool variableIsDefined) {
    if (!stack) {
        log("no stack to show the list " + listName + " on");
        return;
    }
    const auto list = ScreenRegistry::shared().make("FunctionSelectViewController");
    if (!list) {
        return;
    }
    if (auto* screen = dynamic_cast<FunctionListScreen*>(list.get())) {
        screen->setFunctionListName(listName);
        screen->setVariableIsDefined(variableIsDefined);
    }
    stack->push(list);
}

bool openUnitConverter(NavigationController* stack) {
    if (!stack) {
        log("no stack to show the unit converter on");
        return false;
    }
    const auto converter = ScreenRegistry::shared().make("UnitConvertViewController");
    if (!converter) {
        return false;
    }
    converter->setTitle("Units");
    stack->push(converter);
    return true;
}

} // namespace velmora
