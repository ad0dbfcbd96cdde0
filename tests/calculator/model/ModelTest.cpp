#include "tests/calculator/CalculatorFixture.h"
#include "tests/platform/screens/NamedScreen.h"

#include "calculator/model/KeyboardGeometry.h"
#include "calculator/model/ModelProperties.h"
#include "calculator/model/OrientationMode.h"
#include "engine/environment/Environment.h"
#include "engine/tree/Expression.h"
#include "platform/screens/TabBarController.h"

#include <cmath>
#include <limits>
#include <map>

namespace velmora::test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST_F(ModelTest, firstStart) {
    using Names = std::vector<const char*>;
    Model& model = Model::m();
    const std::pair<PropertyList, Names> defaults[] = {
        {0,
         {"angleMode", "whichKeyboard", "orientationMode", "graphType", "graphGridLineType",
          "nHasBecomeActive", "pickerSelectedUnitIndex"}},
        {false,
         {"trailingZeroes", "commasInNumbers", "soundIsOn", "iOnMainKeyboard", "largeFontsOnPhone",
          "graphBackgroundIsBlack", "sameScaleXAndY", "unitConverterIsPushed", "settingsHaveBeenAccessed"}},
        {true, {"roundSmallPartsOfComplexNumbers", "putLabelsOnGraph", "shakeToResetGraph"}},
        {4, {"displayMode"}},
        {5, {"displayDigits"}},
        {9, {"maxDigitsForDecimalNotation"}},
        {0.0, {"tStartForParametricGraph", "thetaStartForPolarGraph"}},
        {0.3, {"soundVolume"}},
        {1.0, {"tEndForParametricGraph"}},
        {2 * std::acos(-1.0), {"thetaEndForPolarGraph"}},
        {-10.0, {"xMinForGraph", "yMinForGraph"}},
        {10.0, {"yMaxForGraph"}},
        {10.062695924764892, {"xMaxForGraph"}}};
    std::size_t count = 0;
    for (const auto& [value, keys] : defaults) {
        for (const char* key : keys) {
            EXPECT_EQ(model.valueForKey(key), value) << key;
            ++count;
        }
    }
    EXPECT_EQ(modelProperties().size(), count);
    EXPECT_EQ(model.inequalityArray().size(), 4U);
    EXPECT_FALSE(model.unitConverterArray());
    const std::tuple<ExpressionList*, int, const char*> lists[] = {
        {&model.equations(), 4, "y4(x)"},           {&model.parametricX(), 4, "x4(t)"},
        {&model.parametricY(), 4, "y4(t)"},         {&model.polarR(), 4, "r4(θ)"},
        {&model.impliedFunctions(), 4, "f4(x, y)"}, {&model.constants(), 50, "k50"}};
    for (const auto& [list, entries, lastName] : lists) {
        EXPECT_EQ(list->nExpressions(), entries) << lastName;
        EXPECT_EQ(list->maxExpressions(), entries) << lastName;
        EXPECT_EQ(list->fullFunctionNameWithIndex(entries - 1), lastName);
    }
    EXPECT_EQ(model.history().nExpressions(), 0);
    EXPECT_EQ(model.history().maxExpressions(), 50);
}

TEST_F(ModelTest, everyPropertyTakesAValueAndRefusesOthers) {
    device.setDeviceClass(DeviceClass::Tablet);
    Model& model = Model::m();
    for (const ModelProperty& property : modelProperties()) {
        const std::string key(property.key);
        SCOPED_TRACE(key);
        const PropertyList before = model.valueForKey(key).value();
        PropertyList wrong(std::numeric_limits<double>::infinity());
        PropertyList other(0.75);
        PropertyList again = before;
        if (property.type == PropertyType::Boolean) {
            wrong = 2;
            other = !before.asBool().value();
            again = before.asBool().value() ? 1 : 0; // a segment's index
        } else if (property.type == PropertyType::Integer) {
            wrong = static_cast<int>(property.minimum) - 1;
            other = static_cast<int>(property.minimum) + (before.asInteger() == 0 ? 1 : 0);
            EXPECT_FALSE(model.setValueForKey(key, 0.5));
        }
        EXPECT_FALSE(model.setValueForKey(key, "text"));
        EXPECT_FALSE(model.setValueForKey(key, kNaN));
        EXPECT_FALSE(model.setValueForKey(key, wrong));
        EXPECT_TRUE(model.setValueForKey(key, other));
        if (key != "pickerSelectedUnitIndex") { // no units yet, so it reads as none
            EXPECT_EQ(model.valueForKey(key), other);
        }
        EXPECT_TRUE(model.setValueForKey(key, again));
        EXPECT_EQ(model.valueForKey(key), before);
    }
    EXPECT_FALSE(model.setValueForKey("graphType", 3));
    EXPECT_FALSE(model.setValueForKey("noSuchKey", 1));
    EXPECT_EQ(model.valueForKey("noSuchKey"), std::nullopt);
}

TEST_F(ModelTest, maximumIsRepairedWhenRead) {
    Model& model = Model::m();
    const std::tuple<double, double, double> cases[] = {{-1, 1, 1},        {3, -2, 3 + 1e-9},
                                                        {5, 5, 5 + 1e-9},  {0, 1e-9, 1e-9},
                                                        {0, 0.5e-9, 1e-9}, {1e300, 0, 1e300}};
    for (const auto& [minimum, maximum, read] : cases) {
        model.setXMinForGraph(minimum);
        model.setXMaxForGraph(maximum);
        model.setYMinForGraph(minimum);
        model.setYMaxForGraph(maximum);
        EXPECT_EQ(model.xMaxForGraph(), read);
        EXPECT_EQ(model.yMaxForGraph(), read);
        model.setXMinForGraph(-1e9); // the repair was stored, so a later minimum does not undo it
        EXPECT_EQ(model.xMaxForGraph(), read);
    }
    model.setXMinForGraph(kNaN);
    model.setXMaxForGraph(-7);
    EXPECT_EQ(model.xMaxForGraph(), -7);
    model.setXMinForGraph(3);
    model.setXMaxForGraph(kNaN);
    EXPECT_TRUE(std::isnan(model.xMaxForGraph()));
    model.resetGraphBounds();
    EXPECT_EQ(model.xMaxForGraph(), 10.062695924764892);
    EXPECT_EQ(model.yMinForGraph(), -10);
}

TEST_F(ModelTest, geometryFollowsDeviceAndSettings) {
    using enum Orientation;
    using enum DeviceClass;
    const struct {
        DeviceClass deviceClass;
        Orientation orientation;
        bool largeFonts;
        int storedDisplayMode, displayMode, geometry, fontSizeMode;
    } cases[] = {{Phone, Portrait, false, 0, 4, 4, 0},       {Phone, LandscapeLeft, true, 2, 4, 3, 1},
                 {Tablet, Portrait, true, 0, 0, 0, 2},       {Tablet, PortraitUpsideDown, false, 1, 1, 1, 3},
                 {Tablet, Portrait, false, 2, 2, 0, 2},      {Tablet, Portrait, false, 3, 3, 1, 3},
                 {Tablet, Portrait, false, 4, 1, 1, 3},      {Tablet, LandscapeLeft, false, 0, 0, 2, 3},
                 {Tablet, LandscapeRight, false, 1, 1, 2, 3}};
    for (const auto& c : cases) {
        device = PlainDevice(c.deviceClass, c.orientation);
        Model::m().setLargeFontsOnPhone(c.largeFonts);
        Model::m().setDisplayMode(c.storedDisplayMode);
        EXPECT_EQ(Model::m().displayMode(), c.displayMode);
        EXPECT_EQ(Model::m().keyboardGeometry(), c.geometry);
        EXPECT_EQ(Model::m().fontSizeMode(), c.fontSizeMode);
    }
    EXPECT_TRUE(logged.empty());
}

TEST_F(ModelTest, programmingFaultsAreLoggedAndFallBack) {
    EXPECT_EQ(keyboardGeometryIsPhone(2), 0);
    EXPECT_EQ(keyboardGeometryIsPhone(3), 1);
    EXPECT_EQ(keyboardGeometryIsPhone(5), -1);
    EXPECT_EQ(keyboardGeometryIsPhone(-1), -1);
    EXPECT_EQ(fontSizeModeForGeometry(7), 1);
    EXPECT_FALSE(orientationModeAllowsPortait(3));
    EXPECT_FALSE(orientationModeAllowsLandscape(-1));
    Model::m().setAngleMode(2);
    EXPECT_EQ(Model::m().angleModeAsString(), "Radians");
    EXPECT_EQ(logged.size(), 6U);
}

TEST_F(ModelTest, orientations) {
    using enum Orientation;
    const Model& model = Model::m();
    for (const int mode : {0, 1, 2}) {
        Model::m().setOrientationMode(mode);
        device.setDeviceClass(DeviceClass::Tablet);
        EXPECT_EQ(model.shouldAutorotateToInterfaceOrientation(PortraitUpsideDown), mode != 1) << mode;
        EXPECT_EQ(model.shouldAutorotateToInterfaceOrientation(LandscapeLeft), mode != 0) << mode;
        device.setDeviceClass(DeviceClass::Phone);
        EXPECT_TRUE(model.shouldAutorotateToInterfaceOrientation(Portrait));
        EXPECT_FALSE(model.shouldAutorotateToInterfaceOrientation(LandscapeRight));
    }
}

TEST_F(ModelTest, settingsTipAtEveryTwentiethActivation) {
    for (const auto& [count, shows] : {std::pair{0, true}, {1, false}, {19, false}, {20, true}, {40, true}}) {
        Model::m().setNHasBecomeActive(count);
        EXPECT_EQ(Model::m().shouldShowSettingsTip(), shows) << count;
    }
}

TEST_F(ModelTest, explainsWhyNothingIsDrawn) {
    Model& model = Model::m();
    for (const auto& [line, explains] : {std::pair{"", true}, {"2 +", true}, {"x", false}}) {
        model.equations().setExpressionAtIndex(3, ExpressionWithTokenArray(tokens(line)), true);
        EXPECT_EQ(model.explainFailureToGraph(), explains) << line;
    }
    model.equations().reset();
    EXPECT_TRUE(model.explainFailureToGraph());
    model.setGraphType(1);
    EXPECT_FALSE(model.explainFailureToGraph());
}

TEST_F(ModelTest, pickerIndex) {
    Model& model = Model::m();
    model.setPickerSelectedUnitIndex(3);
    EXPECT_EQ(model.pickerSelectedUnitIndex(), -1); // no units at all
    for (const auto& [count, index] : {std::pair{2, 1}, {3, 3}, {5, 3}}) {
        model.setUnitConverterArray(PropertyArray(static_cast<std::size_t>(count)));
        EXPECT_EQ(model.pickerSelectedUnitIndex(), index) << count;
    }
}

TEST_F(ModelTest, engineFollowsTheSettings) {
    Model& model = Model::m();
    const auto result = [](const char* line) { return ExpressionWithTokenArray(tokens(line)).resultText(); };
    EXPECT_EQ(result("sin( 9 0 )"), "0.894"); // sine of 90 radians is 0.8939966636
    model.setAngleMode(1);
    EXPECT_EQ(result("sin( 9 0 )"), "1");
    EXPECT_EQ(model.angleModeAsString(), "Degrees");
    model.setCommasInNumbers(true);
    EXPECT_EQ(result("1 2 3 4 5"), "12,345");
    model.setMaxDigitsForDecimalNotation(3);
    EXPECT_EQ(result("1 2 3 4 5"), "1.2345E+04");
    EXPECT_EQ(model.complexRoundingThreshold(), 1e-12);
    model.setRoundSmallPartsOfComplexNumbers(false);
    EXPECT_EQ(Environment::current().complexRoundingThreshold(), 0);
    Environment::current().raiseOneShotAlert("once");
    Environment::current().raiseOneShotAlert("once");
    ASSERT_EQ(alerts.alerts().size(), 1U);
    EXPECT_EQ(alerts.alerts()[0].message, "once");
    Model::resetForTests();
    EXPECT_EQ(result("sin( 9 0 )"), "0.894");
}

TEST_F(ModelTest, graphTypeChoosesTheEditorOfTheSecondTab) {
    Model& model = Model::m();
    for (const char* name : {"EquationsViewController", "ParametricEquationsViewController"}) {
        ScreenRegistry::shared().registerScreen(name, [name] { return std::make_shared<NamedScreen>(name); });
    }
    const auto first = model.currentEquationsViewController();
    EXPECT_EQ(first->className(), "EquationsViewController");
    EXPECT_EQ(model.currentEquationsViewController(), first);
    const auto bar = std::make_shared<TabBarController>();
    const auto editors = std::make_shared<NavigationController>(first);
    const auto above = std::make_shared<OtherScreen>();
    editors->push(above);
    bar->setViewControllers({std::make_shared<NavigationController>(above), editors});
    model.setTabBarController(bar);
    model.setGraphType(0);
    EXPECT_EQ(editors->rootViewController(), first); // no change of type
    model.setGraphType(1);
    EXPECT_NE(editors->rootViewController(), first);
    EXPECT_EQ(editors->rootViewController(), model.currentEquationsViewController());
    EXPECT_EQ(editors->topViewController(), above);
    model.setGraphType(2);
    EXPECT_EQ(editors->rootViewController()->className(), "ParametricEquationsViewController");

    ScreenRegistry::shared().reset();
    model.setGraphType(1);
    EXPECT_EQ(model.graphType(), 1);
    EXPECT_EQ(model.currentEquationsViewController(), nullptr);
    EXPECT_EQ(editors->rootViewController()->className(), "ParametricEquationsViewController");
    EXPECT_TRUE(logHolds("EquationsViewController"));
}

} // namespace
} // namespace velmora::test
