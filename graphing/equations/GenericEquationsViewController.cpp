#include "graphing/equations/GenericEquationsViewController.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/Model.h"
#include "engine/lines/ExpressionList.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenMetrics.h"
#include "platform/screens/ScreenRegistry.h"
#include "toolkit/OrvChoiceSettingsCell.h"
#include "toolkit/OrvPickTableViewController.h"

#include <cmath>

namespace velmora {

namespace {

constexpr double kRowsPerScreen = 0.25; // of the height: four rows fill it

} // namespace

GenericEquationsViewController::GenericEquationsViewController() { setTabImage("equation.png"); }

double GenericEquationsViewController::combinedHeightOfAllRows() {
    const ScreenMetrics& metrics = screenMetrics();
    return metrics.screenSize().height - metrics.tabBarHeight() -
           metrics.navigationBarHeight(currentDevice().statusBarOrientation());
}

double GenericEquationsViewController::heightForRow() const {
    return std::trunc(combinedHeightOfAllRows() * kRowsPerScreen);
}

void GenericEquationsViewController::push(std::shared_ptr<ViewController> screen) {
    if (NavigationController* stack = navigationController(); stack && screen) {
        stack->push(std::move(screen));
    }
}

void GenericEquationsViewController::createRangeButton() {
    setRightBarButtons({{"Range", [this] { push(ScreenRegistry::shared().make("RangeViewController")); }}});
}

void GenericEquationsViewController::openEditor(int entering, ExpressionList& target, int slot) {
    const TokenArray* tokens = target.expressionTokenArray(slot);
    if (!tokens) {
        return;
    }
    setBackButtonTitle("Cancel");
    auto editor = std::make_shared<KeyboardViewController>(entering);
    editor->setTitle("Equation");
    editor->setEnteringWhichEquation(slot);
    editor->setDisplayModel(std::make_unique<ExpressionWithTokenArray>(*tokens));
    editor->setTarget(&target);
    push(std::move(editor));
}

void GenericEquationsViewController::createSwitchButton() {
    std::vector<BarButton> buttons = rightBarButtons();
    buttons.push_back({"Mode", [this] { switchButtonPressed(); }});
    setRightBarButtons(std::move(buttons));
}

void GenericEquationsViewController::switchButtonPressed() {
    push(std::make_shared<OrvPickTableViewController>(std::make_shared<OrvListPickSettingsCell>(
        "Graph type", OrvBoundSettingsCell::Binding{"Model", "graphType"}, graphTypeChoices())));
}

void GenericEquationsViewController::viewWillAppear(bool /*animated*/) {
    setBackButtonTitle({}); // "Cancel" holds for the editor only
    m_reloaded.emit();
}

void GenericEquationsViewController::didRotate(Orientation /*from*/) { m_reloaded.emit(); }

bool GenericEquationsViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
