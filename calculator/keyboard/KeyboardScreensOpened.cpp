// The screens that keys of the keyboard open, each by its name.

#include "calculator/keyboard/FunctionListScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "engine/lines/ExpressionList.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/text/Log.h"

namespace velmora {

void KeyboardViewController::openList(const std::string& listName, bool variableIsDefined) {
    NavigationController* stack = navigationController();
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

void KeyboardViewController::functionButtonPressed() {
    // A list without a variable, such as the constants, is edited in the same mode but defines none.
    const bool hasVariable = !m_target || !m_target->variableNameString().empty();
    openList("Functions", m_entering == kEnteringFunction && hasVariable);
}

void KeyboardViewController::constantButtonPressed() { openList("Constants", false); }

void KeyboardViewController::trigButtonPressed() { openList("TrigFunctions", false); }

void KeyboardViewController::unitsButtonPressed() {
    NavigationController* stack = navigationController();
    if (!stack) {
        log("no stack to show the unit converter on");
        return;
    }
    const auto converter = ScreenRegistry::shared().make("UnitConvertViewController");
    if (!converter) {
        return;
    }
    converter->setTitle("Units");
    if (m_entering == kEnteringCalculatorLine) {
        Model::m().setUnitConverterIsPushed(true);
    }
    stack->push(converter);
}

} // namespace velmora
