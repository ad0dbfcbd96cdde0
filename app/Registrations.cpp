#include "app/Registrations.h"

#include "calculator/FunctionSelectViewController.h"
#include "calculator/KeyboardViewController.h"
#include "calculator/Model.h"
#include "calculator/PageViewController.h"
#include "platform/ScreenRegistry.h"
#include "platform/SettingsTargetRegistry.h"

namespace velmora {

void registerEverything() {
    ScreenRegistry::shared().registerScreen("KeyboardViewController",
                                            [] { return std::make_shared<KeyboardViewController>(); });
    ScreenRegistry::shared().registerScreen("FunctionSelectViewController",
                                            [] { return std::make_shared<FunctionSelectViewController>(); });
    registerPages();
    SettingsTargetRegistry::shared().registerTarget("Model", Model::m());
}

} // namespace velmora
