#include "tests/calculator/CalculatorFixture.h"

#include "calculator/KeyboardGeometry.h"
#include "calculator/ModelProperties.h"
#include "calculator/OrientationMode.h"
#include "engine/Environment.h"
#include "engine/Expression.h"
#include "platform/TabBarController.h"

#include <cmath>
#include <limits>
#include <map>

namespace velmora::test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST_F(ModelTest, firstStart) {
    const std::map<std::string, PropertyList> defaults{{"maxDigitsForDecimalNotation", 9},
                                                       {"displayDigits", 5},
                                                       {"trailingZeroes", false},
                                                       {"commasInNumbers", false},
                                                       {"soundIsOn", false},
                                                       {"soundVolume", 0.3},
                                                       {"angleMode", 0},
                                                       {"roundSmallPartsOfComplexNumbers", true},
                                                       {"iOnMainKeyboard", false},
                                                       {"whichKeyboard", 0},
                                                       {"largeFontsOnPhone", false},
                                                       {"displayMode", 4},
                                                       {"orientationMode", 0},
                                                       {"xMinForGraph", -10.0},
                                                       {"xMaxForGraph", 10.062695924764892},
                                                       {"yMinForGraph", -10.0},
                                                       {"yMaxForGraph", 10.0},
                                                       {"tStartForParametricGraph", 0.0},
                                                       {"tEndForParametricGraph", 1.0},
                                                       {"thetaStartForPolarGraph", 0.0},
                                                       {"thetaEndForPolarGraph", 2 * std::acos(-1.0)},
                                                       {"graphType", 0},
                                                       {"graphGridLineType", 0},
                                                       {"graphBackgroundIsBlack", false},
                                                       {"putLabelsOnGraph", true},
                                                       {"shakeToResetGraph", true},
                                                       {"sameScaleXAndY", false},
                                                       {"unitConverterIsPushed", false},
                                                       {"settingsHaveBeenAccessed", false},
                                                       {"nHasBecomeActive", 0},
                                                       {"pickerSelectedUnitIndex", 0}};
    EXPECT_EQ(modelProperties().size(), defaults.size());
    for (const auto& [key, value] : defaults) {
        SCOPED_TRACE(key);
        EXPECT_EQ(Model::m().valueForKey(key), value);
    }
    EXPECT_EQ(Model::m().inequalityArray().size(), 4U);
    EXPECT_FALSE(Model::m().unitConverterArray());
}

TEST_F(ModelTest, lists) {
    Model& model = Model::m();
    const struct {
        ExpressionList& list;
        int entries;
        int capacity;
        const char* lastName;
    } cases[] = {{model.equations(), 4, 4, "y4(x)"},           {model.parametricX(), 4, 4, "x4(t)"},
                 {model.parametricY(), 4, 4, "y4(t)"},         {model.polarR(), 4, 4, "r4(θ)"},
                 {model.impliedFunctions(), 4, 4, "f4(x, y)"}, {model.constants(), 50, 50, "k50"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.lastName);
        EXPECT_EQ(c.list.nExpressions(), c.entries);
        EXPECT_EQ(c.list.maxExpressions(), c.capacity);
        EXPECT_EQ(c.list.fullFunctionNameWithIndex(c.entries - 1), c.lastName);
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
        EXPECT_FALSE(model.setValueForKey(key, "text"));
        EXPECT_FALSE(model.setValueForKey(key, kNaN));
        switch (property.type) {
        case PropertyType::Boolean:
            EXPECT_FALSE(model.setValueForKey(key, 2));
            EXPECT_TRUE(model.setValueForKey(key, !before.asBool().value()));
            EXPECT_NE(model.valueForKey(key), before);
            EXPECT_TRUE(model.setValueForKey(key, before.asBool().value() ? 1 : 0)); // a segment's index
            EXPECT_EQ(model.valueForKey(key), before);
            break;
        case PropertyType::Integer: {
            const auto other = static_cast<int>(property.minimum) + (before.asInteger() == 0 ? 1 : 0);
            EXPECT_FALSE(model.setValueForKey(key, static_cast<int>(property.minimum) - 1));
            EXPECT_FALSE(model.setValueForKey(key, 0.5));
            EXPECT_TRUE(model.setValueForKey(key, other));
            if (key != "pickerSelectedUnitIndex") { // no units yet, so it reads as none
                EXPECT_EQ(model.valueForKey(key), PropertyList(other));
            }
            break;
        }
        case PropertyType::Number:
            EXPECT_FALSE(model.setValueForKey(key, std::numeric_limits<double>::infinity()));
            EXPECT_TRUE(model.setValueForKey(key, 0.75));
            EXPECT_EQ(model.valueForKey(key), PropertyList(0.75));
            model.setValueForKey(key, before);
            break;
        }
    }
    EXPECT_FALSE(model.setValueForKey("graphType", 3));
    EXPECT_FALSE(model.setValueForKey("noSuchKey", 1));
    EXPECT_EQ(model.valueForKey("noSuchKey"), std::nullopt);
}

TEST_F(ModelTest, maximumIsRepairedWhenRead) {
    Model& model = Model::m();
    const struct {
        double minimum, maximum, read;
    } cases[] = {{-1, 1, 1},      {3, -2, 3 + 1e-9}, {5, 5, 5 + 1e-9},
                 {0, 1e-9, 1e-9}, {0, 0.5e-9, 1e-9}, {1e300, 0, 1e300}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.maximum);
        model.setXMinForGraph(c.minimum);
        model.setXMaxForGraph(c.maximum);
        model.setYMinForGraph(c.minimum);
        model.setYMaxForGraph(c.maximum);
        EXPECT_EQ(model.xMaxForGraph(), c.read);
        EXPECT_EQ(model.yMaxForGraph(), c.read);
        model.setXMinForGraph(-1e9); // the repair was stored, so a later minimum does not undo it
        EXPECT_EQ(model.xMaxForGraph(), c.read);
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
    const struct {
        DeviceClass deviceClass;
        Orientation orientation;
        bool largeFonts;
        int storedDisplayMode;
        int displayMode;
        int geometry;
        int fontSizeMode;
    } cases[] = {{DeviceClass::Phone, Portrait, false, 0, 4, 4, 0},
                 {DeviceClass::Phone, LandscapeLeft, true, 2, 4, 3, 1},
                 {DeviceClass::Tablet, Portrait, true, 0, 0, 0, 2},
                 {DeviceClass::Tablet, PortraitUpsideDown, false, 1, 1, 1, 3},
                 {DeviceClass::Tablet, Portrait, false, 2, 2, 0, 2},
                 {DeviceClass::Tablet, Portrait, false, 3, 3, 1, 3},
                 {DeviceClass::Tablet, Portrait, false, 4, 1, 1, 3},
                 {DeviceClass::Tablet, LandscapeLeft, false, 0, 0, 2, 3},
                 {DeviceClass::Tablet, LandscapeRight, false, 1, 1, 2, 3}};
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
    const struct {
        int mode;
        bool portrait, landscape;
    } cases[] = {{0, true, false}, {1, false, true}, {2, true, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.mode);
        Model::m().setOrientationMode(c.mode);
        device.setDeviceClass(DeviceClass::Tablet);
        EXPECT_EQ(Model::m().shouldAutorotateToInterfaceOrientation(Orientation::PortraitUpsideDown),
                  c.portrait);
        EXPECT_EQ(Model::m().shouldAutorotateToInterfaceOrientation(Orientation::LandscapeLeft), c.landscape);
        device.setDeviceClass(DeviceClass::Phone);
        EXPECT_TRUE(Model::m().shouldAutorotateToInterfaceOrientation(Orientation::Portrait));
        EXPECT_FALSE(Model::m().shouldAutorotateToInterfaceOrientation(Orientation::LandscapeRight));
    }
}

TEST_F(ModelTest, settingsTipAtEveryTwentiethActivation) {
    for (const int count : {0, 1, 19, 20, 21, 40}) {
        SCOPED_TRACE(count);
        Model::m().setNHasBecomeActive(count);
        EXPECT_EQ(Model::m().shouldShowSettingsTip(), count == 0 || count == 20 || count == 40);
    }
    Model::m().setSettingsHaveBeenAccessed(true);
    EXPECT_FALSE(Model::m().shouldShowSettingsTip());
}

TEST_F(ModelTest, explainsWhyNothingIsDrawn) {
    Model& model = Model::m();
    EXPECT_TRUE(model.explainFailureToGraph());
    model.equations().setExpressionAtIndex(3, ExpressionWithTokenArray(tokens("2 +")), true);
    EXPECT_TRUE(model.explainFailureToGraph());
    model.equations().setExpressionAtIndex(1, ExpressionWithTokenArray(tokens("x")), true);
    EXPECT_FALSE(model.explainFailureToGraph());
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

class NamedScreen final : public ViewController {
public:
    explicit NamedScreen(std::string name) : m_name(std::move(name)) {}
    std::string className() const override { return m_name; }

private:
    std::string m_name;
};

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
    bar->setViewControllers(
        {std::make_shared<NavigationController>(std::make_shared<OtherScreen>()), editors});
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
