#include "app/Registrations.h"

#include "calculator/FunctionSelectViewController.h"
#include "calculator/KeyboardViewController.h"
#include "calculator/Model.h"
#include "calculator/PageViewController.h"
#include "calculator/RangeViewController.h"
#include "calculator/SettingsViewController.h"
#include "graphing/EquationsViewController.h"
#include "graphing/GraphViewController.h"
#include "graphing/ParametricEquationsViewController.h"
#include "platform/SavingRegistry.h"
#include "platform/ScreenRegistry.h"
#include "platform/SettingsTargetRegistry.h"
#include "tools/UnitConverterModel.h"

namespace velmora {

void registerEverything() {
    ScreenRegistry::shared().registerScreen("KeyboardViewController",
                                            [] { return std::make_shared<KeyboardViewController>(); });
    ScreenRegistry::shared().registerScreen("FunctionSelectViewController",
                                            [] { return std::make_shared<FunctionSelectViewController>(); });
    ScreenRegistry::shared().registerScreen("SettingsViewController",
                                            [] { return std::make_shared<SettingsViewController>(); });
    ScreenRegistry::shared().registerScreen("RangeViewController",
                                            [] { return std::make_shared<RangeViewController>(); });
    ScreenRegistry::shared().registerScreen("GraphViewController",
                                            [] { return std::make_shared<GraphViewController>(); });
    ScreenRegistry::shared().registerScreen("EquationsViewController",
                                            [] { return std::make_shared<EquationsViewController>(); });
    ScreenRegistry::shared().registerScreen("ParametricEquationsViewController", [] {
        return std::make_shared<ParametricEquationsViewController>();
    });
    registerPages();
    SettingsTargetRegistry::shared().registerTarget("Model", Model::m());
    SettingsTargetRegistry::shared().registerTarget("UnitConverterModel", UnitConverterModel::ucm());
    SavingRegistry::shared().registerSaver("UnitConverterModel", [] { UnitConverterModel::ucm().save(); });
}

} // namespace velmora
