#include "ui/ScreenAdapters.h"

#include "calculator/ConstantEditViewController.h"
#include "calculator/FunctionSelectViewController.h"
#include "calculator/KeyboardViewController.h"
#include "calculator/PageViewController.h"
#include "graphing/GenericEquationsViewController.h"
#include "graphing/GraphViewController.h"
#include "platform/Log.h"
#include "toolkit/OrvPickTableViewController.h"
#include "toolkit/OrvSettingsTableViewController.h"
#include "ui/ConstantEditAdapter.h"
#include "ui/EquationsAdapter.h"
#include "ui/FunctionSelectAdapter.h"
#include "ui/GraphAdapter.h"
#include "ui/KeyboardScreenAdapter.h"
#include "ui/PageAdapter.h"
#include "ui/PickTableAdapter.h"
#include "ui/SettingsTableAdapter.h"

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
    make<OrvSettingsTableViewController, SettingsTableAdapter>,
    make<OrvPickTableViewController, PickTableAdapter>,
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
