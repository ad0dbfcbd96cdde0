#include "ui/adapters/ScreenAdapters.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/lists/ConstantEditViewController.h"
#include "calculator/lists/FunctionSelectViewController.h"
#include "calculator/pages/PageViewController.h"
#include "calculator/table/RowSelectedViewController.h"
#include "calculator/table/ValueTableViewController.h"
#include "graphing/equations/GenericEquationsViewController.h"
#include "graphing/screen/GraphViewController.h"
#include "platform/text/Log.h"
#include "toolkit/OrvPickTableViewController.h"
#include "toolkit/OrvSettingsTableViewController.h"
#include "tools/dates/DateCalculatorViewController.h"
#include "tools/solvers/PolynomialSolverViewController.h"
#include "tools/triangle/TriangleSolverViewController.h"
#include "tools/units/UnitConvertViewController.h"
#include "ui/adapters/ConstantEditAdapter.h"
#include "ui/adapters/DateCalculatorAdapter.h"
#include "ui/adapters/EquationsAdapter.h"
#include "ui/adapters/FunctionSelectAdapter.h"
#include "ui/adapters/GraphAdapter.h"
#include "ui/adapters/KeyboardScreenAdapter.h"
#include "ui/adapters/PageAdapter.h"
#include "ui/adapters/PickTableAdapter.h"
#include "ui/adapters/PolynomialSolverAdapter.h"
#include "ui/adapters/RowSelectedAdapter.h"
#include "ui/adapters/SettingsTableAdapter.h"
#include "ui/adapters/TriangleSolverAdapter.h"
#include "ui/adapters/UnitConvertAdapter.h"
#include "ui/adapters/ValueTableAdapter.h"

namespace velmora {

namespace {

using ControllerPointer = std::shared_ptr<ViewController>;

template <class Controller, class Adapter>
std::unique_ptr<QObject> make(const ControllerPointer& controller, SceneAdapter& scene) {
    auto own = std::dynamic_pointer_cast<Controller>(controller);
    return own ? std::make_unique<Adapter>(std::move(own), scene) : nullptr;
}

/// One line a kind of screen.
constexpr std::unique_ptr<QObject> (*kMakers[])(const ControllerPointer&, SceneAdapter&) = {
    make<KeyboardViewController, KeyboardScreenAdapter>,
    make<FunctionSelectViewController, FunctionSelectAdapter>,
    make<ConstantEditViewController, ConstantEditAdapter>,
    make<PageViewController, PageAdapter>,
    make<GenericEquationsViewController, EquationsAdapter>,
    make<GraphViewController, GraphAdapter>,
    make<PolynomialSolverViewController, PolynomialSolverAdapter>,
    make<TriangleSolverViewController, TriangleSolverAdapter>,
    make<OrvSettingsTableViewController, SettingsTableAdapter>,
    make<OrvPickTableViewController, PickTableAdapter>,
    make<UnitConvertViewController, UnitConvertAdapter>,
    make<DateCalculatorViewController, DateCalculatorAdapter>,
    make<ValueTableViewController, ValueTableAdapter>,
    make<RowSelectedViewController, RowSelectedAdapter>,
};

} // namespace

std::unique_ptr<QObject> newScreenAdapter(const ControllerPointer& controller, SceneAdapter& scene) {
    for (const auto& maker : kMakers) {
        if (auto adapter = maker(controller, scene)) {
            return adapter;
        }
    }
    log("nothing draws the screen " + controller->className());
    return nullptr;
}

} // namespace velmora
