#include "app/Registrations.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/lists/FunctionSelectViewController.h"
#include "calculator/model/Model.h"
#include "calculator/pages/PageViewController.h"
#include "calculator/settings/RangeViewController.h"
#include "calculator/settings/SettingsViewController.h"
#include "calculator/table/ValueTableViewController.h"
#include "graphing/equations/EquationsViewController.h"
#include "graphing/equations/ParametricEquationsViewController.h"
#include "graphing/screen/GraphViewController.h"
#include "platform/files/SavingRegistry.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/screens/SettingsTargetRegistry.h"
#include "tools/dates/DateCalculatorViewController.h"
#include "tools/kept/KeptTexts.h"
#include "tools/solvers/PolynomialSolverViewController.h"
#include "tools/triangle/TriangleSolverViewController.h"
#include "tools/units/UnitConvertViewController.h"
#include "tools/units/UnitConverterModel.h"

namespace velmora {

namespace {

template <class Screen> std::shared_ptr<ViewController> make() { return std::make_shared<Screen>(); }

template <int degree> std::shared_ptr<ViewController> makeSolver() {
    return std::make_shared<PolynomialSolverViewController>(degree);
}

struct ScreenRow {
    const char* name;
    std::shared_ptr<ViewController> (*make)();
};

/// The screens that are opened by name, in alphabetical order: a new screen is one line here, and one in
/// ui/adapters/ScreenAdapters.cpp for what shows it.
constexpr ScreenRow kScreens[] = {
    {"DateCalculatorViewController", make<DateCalculatorViewController>},
    {"CubicSolverViewController", makeSolver<3>},
    {"EquationsViewController", make<EquationsViewController>},
    {"FunctionSelectViewController", make<FunctionSelectViewController>},
    {"GraphViewController", make<GraphViewController>},
    {"KeyboardViewController", make<KeyboardViewController>},
    {"LinearSolverViewController", makeSolver<1>},
    {"ParametricEquationsViewController", make<ParametricEquationsViewController>},
    {"PolynomialSolversViewController", newPolynomialSolversViewController},
    {"QuadraticSolverViewController", makeSolver<2>},
    {"RangeViewController", make<RangeViewController>},
    {"SettingsViewController", make<SettingsViewController>},
    {"TriangleSolverViewController", make<TriangleSolverViewController>},
    {"UnitConvertViewController", make<UnitConvertViewController>},
    {"ValueTableViewController", make<ValueTableViewController>},
};

} // namespace

void registerEverything() {
    for (const ScreenRow& screen : kScreens) {
        ScreenRegistry::shared().registerScreen(screen.name, screen.make);
    }
    registerPages();
    SettingsTargetRegistry::shared().registerTarget("Model", Model::m());
    SettingsTargetRegistry::shared().registerTarget("UnitConverterModel", UnitConverterModel::ucm());
    SavingRegistry::shared().registerSaver("KeptTexts", KeptTexts::saveAll);
    SavingRegistry::shared().registerSaver("UnitConverterModel", [] { UnitConverterModel::ucm().save(); });
}

} // namespace velmora
