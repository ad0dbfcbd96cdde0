#include "app/VelmoraAppDelegate.h"
#include "calculator/history/DisplayHistoryTableViewController.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "platform/files/SavingRegistry.h"
#include "platform/machine/DocumentsFolder.h"
#include "platform/machine/Sound.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/ScreenRegistry.h"
#include "platform/screens/SettingsTargetRegistry.h"
#include "platform/text/Log.h"
#include "tests/platform/files/TemporaryFolder.h"
#include "tests/platform/screens/NamedScreen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora::test {
namespace {

class VelmoraAppDelegateTest : public testing::Test {
public:
    VelmoraAppDelegateTest() { forgetEverything(); }
    ~VelmoraAppDelegateTest() override { forgetEverything(); }

    static void forgetEverything() {
        ScreenRegistry::shared().reset();
        SettingsTargetRegistry::shared().reset();
        SavingRegistry::shared().reset();
        Model::resetForTests();
    }

    RecordingSoundPlayer sounds;
    std::vector<std::string> logged;
    SoundPlayerScope soundScope{sounds};
    LogScope logScope{[this](std::string_view line) { logged.emplace_back(line); }};
    VelmoraAppDelegate app;
};

TEST_F(VelmoraAppDelegateTest, startsWithTheCalculator) {
    app.applicationDidFinishLaunching();
    EXPECT_EQ(sounds.category(), "AVAudioSessionCategoryAmbient");
    EXPECT_TRUE(sounds.preloaded().empty());
    EXPECT_TRUE(logged.empty());

    const auto stack =
        std::dynamic_pointer_cast<NavigationController>(app.tabBarController()->viewControllers().at(0));
    ASSERT_TRUE(stack);
    EXPECT_EQ(stack->topViewController(), app.calculator());
    EXPECT_TRUE(app.calculator()->hidesNavigationBar());

    app.tabBarController()->appear();
    app.calculator()->keyboardView().setSize(320, 499);
    for (const char* key : {"6", "*", "7", "Enter"}) {
        EXPECT_TRUE(app.calculator()->hardwareKey(key));
    }
    EXPECT_EQ(Model::m().history().entryAtIndex(0)->resultText(), "42");
    EXPECT_EQ(SettingsTargetRegistry::shared().find("Model"), &Model::m());
}

TEST_F(VelmoraAppDelegateTest, tabsStandInTheirOrder) {
    struct Tab {
        std::string title, image, className;
    };
    const Tab tabs[] = {{"Calculator", "calculator.png", "KeyboardViewController"},
                        {"Equations", "equation.png", "EquationsViewController"},
                        {"Graph", "graph.png", "GraphViewController"},
                        {"Reference", "reference.png", "FunctionSelectViewController"},
                        {"Table", "table.png", "ValueTableViewController"},
                        {"Triangle Solver", "triangleSolver.png", "TriangleSolverViewController"},
                        {"Polynomial Solvers", "polynomialSolver.png", "FunctionSelectViewController"},
                        {"Settings", "settings.png", "SettingsViewController"},
                        {"If you like this app", "heart", "PageViewController"},
                        {"Help", "questionMark.png", "FunctionSelectViewController"}};
    app.applicationDidFinishLaunching();
    const auto& shown = app.tabBarController()->viewControllers();
    ASSERT_EQ(shown.size(), std::size(tabs));
    for (std::size_t place = 0; place < shown.size(); ++place) {
        const auto stack = std::dynamic_pointer_cast<NavigationController>(shown[place]);
        const std::string className = (stack ? stack->rootViewController() : shown[place])->className();
        EXPECT_EQ(shown[place]->tabTitle(), tabs[place].title);
        EXPECT_EQ(shown[place]->tabImage(), tabs[place].image);
        EXPECT_EQ(className, tabs[place].className);
    }
}

TEST_F(VelmoraAppDelegateTest, clickIsReadyWhenSoundIsAlreadyOn) {
    Model::m().setSoundIsOn(true);
    app.applicationDidFinishLaunching();
    EXPECT_EQ(sounds.preloaded(), std::vector<std::string>{"click"});
}

TEST_F(VelmoraAppDelegateTest, activationsAreCountedAndMoveTheTip) {
    Model::m().setNHasBecomeActive(18);
    app.applicationDidFinishLaunching();
    app.tabBarController()->appear();
    const DisplayHistoryTableViewController& table = *app.calculator()->displayTableViewController();
    app.applicationDidBecomeActive();
    EXPECT_EQ(table.nTipCells(), 0);
    app.applicationDidBecomeActive();
    EXPECT_EQ(Model::m().nHasBecomeActive(), 20);
    EXPECT_EQ(table.nTipCells(), 1);
}

TEST_F(VelmoraAppDelegateTest, savesInTheBackgroundAndAtTheEnd) {
    app.applicationDidFinishLaunching();
    int saves = 0;
    SavingRegistry::shared().registerSaver("test", [&saves] { ++saves; });
    app.applicationDidBecomeActive();
    EXPECT_EQ(saves, 0);
    app.applicationDidEnterBackground();
    EXPECT_EQ(saves, 1);
    app.applicationWillTerminate();
    EXPECT_EQ(saves, 2);
}

TEST_F(VelmoraAppDelegateTest, unitConverterOpensAgainOverTheCalculator) {
    ScreenRegistry::shared().registerScreen("UnitConvertViewController", [] {
        return std::make_shared<NamedScreen>("UnitConvertViewController");
    });
    const TemporaryFolder home;
    PlainDocumentsFolder documents(home.path());
    const DocumentsFolderScope documentsScope(documents);
    Model::m().setUnitConverterIsPushed(true);
    app.applicationDidEnterBackground(); // which saves
    Model::resetForTests();
    app.applicationDidFinishLaunching();
    app.tabBarController()->appear();
    EXPECT_NE(app.calculator()->navigationController()->topViewController(), app.calculator());
    EXPECT_TRUE(Model::m().unitConverterIsPushed());
}

} // namespace
} // namespace velmora::test
