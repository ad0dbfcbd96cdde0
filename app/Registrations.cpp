#include "app/Registrations.h"

#include "calculator/KeyboardViewController.h"
#include "calculator/Model.h"
#include "platform/ScreenRegistry.h"
#include "platform/SettingsTargetRegistry.h"

namespace velmora {

void registerEverything() {
    ScreenRegistry::shared().registerScreen("KeyboardViewController",
                                            [] { return std::make_shared<KeyboardViewController>(); });
    SettingsTargetRegistry::shared().registerTarget("Model", Model::m());
}

} // namespace velmora
