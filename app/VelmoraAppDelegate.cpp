#include "app/VelmoraAppDelegate.h"

#include "app/Registrations.h"
#include "calculator/keyboard/FunctionListScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "platform/machine/Sound.h"
#include "platform/machine/StaticObjectManager.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/text/Log.h"
#include "resources/CompiledResources.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

namespace velmora {

namespace {

void prepareSound() {
    // Key clicks mix with what other programs play.
    soundPlayer().setCategory("AVAudioSessionCategoryAmbient");
    // The saved settings are not loaded yet, so at a launch this sees the default, off, and the click is
    // loaded when it is first played. Intended: a start never waits for a sound.
    if (Model::m().soundIsOn()) {
        StaticObjectManager::shared().preloadSound("click");
    }
}

void warnOfMemoryDebugging() {
    if (std::getenv("NSZombieEnabled") || std::getenv("NSAutoreleaseFreedObjectCheckEnabled")) {
        log("NSZombieEnabled/NSAutoreleaseFreedObjectCheckEnabled enabled!");
    }
}

/// A tab that is opened by its class name. It has its place as soon as that name is registered; until then
/// the others stand as if it were not there.
struct TabRow {
    const char* className;
    const char* title;
    const char* image;
    const char* listName = nullptr; ///< what a list screen shows
    bool inStack = true;
};

constexpr const char* kEquationsTab = "EquationsViewController";
constexpr TabRow kSettingsTab{"SettingsViewController", "Settings", "settings.png"};

// The order is fixed, for people learn where a tab stands.
constexpr std::array kTabs{
    TabRow{"KeyboardViewController", "Calculator", "calculator.png"},
    TabRow{kEquationsTab, "Equations", "equation.png"},
    TabRow{.className = "GraphViewController", .title = "Graph", .image = "graph.png", .inStack = false},
    TabRow{"FunctionSelectViewController", "Reference", "reference.png", "Reference"},
    TabRow{"ValueTableViewController", "Table", "table.png"},
    TabRow{"TriangleSolverViewController", "Triangle Solver", "triangleSolver.png"},
    TabRow{"PolynomialSolversViewController", "Polynomial Solvers", "polynomialSolver.png"},
    kSettingsTab,
    TabRow{"IfYouLikeThisAppPage", "If you like this app", "heart"},
    TabRow{"FunctionSelectViewController", "Help", "questionMark.png", "Help List"},
};

std::shared_ptr<ViewController> makeRoot(const TabRow& row) {
    if (!ScreenRegistry::shared().isRegistered(row.className)) {
        return nullptr;
    }
    // Which editor stands here depends on the kind of graph.
    if (row.className == std::string_view(kEquationsTab)) {
        return Model::m().currentEquationsViewController();
    }
    auto root = ScreenRegistry::shared().make(row.className);
    auto* list = dynamic_cast<FunctionListScreen*>(root.get());
    if (list && row.listName) { // some lists know their own name
        list->setFunctionListName(row.listName);
    }
    return root;
}

/// The tab, inside a stack of its own where the row says so; null for a screen that does not exist.
std::shared_ptr<ViewController> makeTab(const TabRow& row) {
    auto root = makeRoot(row);
    if (!root) {
        return nullptr;
    }
    if (root->title().empty()) {
        root->setTitle(row.title);
    }
    root->setTabTitle(row.title);
    root->setTabImage(row.image);
    if (!row.inStack) {
        return root;
    }
    auto stack = std::make_shared<NavigationController>(root);
    stack->setTitle(row.title);
    stack->setTabImage(row.image);
    return stack;
}

} // namespace

VelmoraAppDelegate::VelmoraAppDelegate() : m_saver([] { Model::m().save(); }) {}

VelmoraAppDelegate::~VelmoraAppDelegate() = default;

void VelmoraAppDelegate::applicationDidFinishLaunching() {
    prepareSound();
    warnOfMemoryDebugging();
    registerCompiledResources();
    registerEverything();
    Model::m().load();

    m_tabBarController = std::make_shared<TabBarController>();
    TabBarController::Tabs tabs;
    for (const TabRow& row : kTabs) {
        if (auto tab = makeTab(row)) {
            if (&row == &kTabs.front()) {
                const auto& stack = dynamic_cast<const NavigationController&>(*tab);
                m_calculator = std::dynamic_pointer_cast<KeyboardViewController>(stack.rootViewController());
            }
            if (row.className == std::string_view(kSettingsTab.className)) {
                m_tabBarController->setFirstTabBehindMore(tabs.size());
            }
            tabs.push_back(std::move(tab));
        }
    }
    m_tabBarController->setViewControllers(std::move(tabs));
    Model::m().setTabBarController(m_tabBarController);
    m_calculator->takeUpHalfTypedLine();
    if (Model::m().unitConverterIsPushed()) {
        m_calculator->unitsButtonPressed();
    }
    keepTheSelectedTab();
    m_changes = Model::m().changed().subscribe([this](ModelChange change) { m_saver.note(change); });
    m_replacements = Model::m().replaced().subscribe([this] { m_calculator->reloadHistory(); });
}

void VelmoraAppDelegate::keepTheSelectedTab() {
    const TabBarController::Tabs& tabs = m_tabBarController->viewControllers();
    const auto chosen =
        std::ranges::find(tabs, Model::m().selectedTab(), [](const auto& tab) { return tab->tabTitle(); });
    if (chosen != tabs.end()) {
        m_tabBarController->setSelectedIndex(static_cast<std::size_t>(chosen - tabs.begin()));
    }
    m_selections = m_tabBarController->selectionChanged().subscribe([this] {
        if (const auto selected = m_tabBarController->selectedViewController()) {
            Model::m().setSelectedTab(selected->tabTitle());
        }
    });
}

void VelmoraAppDelegate::applicationDidBecomeActive() {
    Model::m().addActivations(1);
    // The tip row may have come or gone, and taps are told by the row's number.
    if (m_calculator) {
        m_calculator->reloadHistory();
    }
}

void VelmoraAppDelegate::applicationDidEnterBackground() { Model::m().save(); }

void VelmoraAppDelegate::applicationWillTerminate() { Model::m().save(); }

} // namespace velmora
