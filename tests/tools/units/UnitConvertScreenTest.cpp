#include "tools/units/UnitConvertViewController.h"

#include "platform/machine/DocumentsFolder.h"
#include "platform/screens/TabBarController.h"
#include "resources/CompiledResources.h"
#include "tests/calculator/CalculatorFixture.h"
#include "tools/units/UnitConvertKeypad.h"
#include "tools/units/UnitConverterModel.h"

#include <gmock/gmock.h>

#include <cmath>
#include <set>

namespace velmora::test {
namespace {

class UnitConvert : public KeyboardTest {
protected:
    UnitConvert() {
        registerCompiledResources();
        UnitConverterModel::resetForTests();
        ScreenRegistry::shared().registerScreen("UnitConvertViewController",
                                                [] { return std::make_shared<UnitConvertViewController>(); });
        open();
        openConverter();
    }
    ~UnitConvert() override { UnitConverterModel::resetForTests(); }

    void openConverter() {
        keyboard->unitsButtonPressed();
        converter = std::dynamic_pointer_cast<UnitConvertViewController>(stack->topViewController());
        ASSERT_TRUE(converter);
    }
    void turn(int wheel, const std::string& title) {
        for (int row = 0; row < converter->numberOfRowsInComponent(wheel); ++row) {
            if (converter->titleForRow(row, wheel) == title) {
                converter->pickerViewDidSelectRow(row, wheel);
                return;
            }
        }
        ADD_FAILURE() << "no row " << title;
    }
    void turn(const std::string& quantity, const std::string& from, const std::string& to) {
        turn(0, quantity);
        turn(1, from);
        turn(2, to);
    }
    void keys(const std::string& characters) {
        for (const char character : characters) {
            converter->buttonPressed(titleOfUnitConvertKey(character));
        }
    }
    std::string chosen() const {
        std::string text;
        for (int wheel = 0; wheel < 3; ++wheel) {
            text += (wheel > 0 ? ", " : "") +
                    converter->titleForRow(converter->selectedRowInComponent(wheel), wheel);
        }
        return text;
    }
    /// Both labels: "2 feet = 0.6096 meters".
    std::string labels() const { return converter->leftSideText() + " = " + converter->rightSideText(); }

    std::shared_ptr<UnitConvertViewController> converter;
};

TEST_F(UnitConvert, readsWhatIsTyped) {
    EXPECT_EQ(converter->title(), "Units");
    EXPECT_TRUE(Model::m().unitConverterIsPushed());
    EXPECT_EQ(chosen(), "Length, meter, meter");
    struct Row {
        const char* quantity;
        const char* from;
        const char* to;
        const char* keys;
        const char* labels;
    };
    // Published equivalents: 1 ft = 30.48 cm, 1 lb = 453.59237 g, -40 °F = -40 °C.
    const Row rows[] = {
        {"Length", "foot", "centimeter", "", "foot = 30.48 centimeters"},
        {"Length", "foot", "centimeter", "-", "-foot = -30.48 centimeters"},
        {"Length", "foot", "centimeter", "-5-", "5 feet = 152.4 centimeters"},
        {"Length", "foot", "centimeter", "2E3", "2E3 feet = 60960 centimeters"},
        {"Length", "foot", "centimeter", "1.0", "1.0 foot = 30.48 centimeters"},
        {"Length", "foot", "centimeter", "-1", "-1 foot = -30.48 centimeters"},
        {"Length", "inch", "centimeter", "12.5DDD", "1 inch = 2.54 centimeters"},
        {"Length", "inch", "centimeter", "12C", "inch = 2.54 centimeters"},
        {"Length", "inch", "centimeter", "CDD", "inch = 2.54 centimeters"},
        {"Length", "centimeter", "inch", "2.54", "2.54 centimeters = 1 inch"},
        {"Mass", "pound", "gram", "2", "2 pounds = 907.18474 grams"},
        {"Energy", "joule", "kilowatt-hour", "3600000", "3600000 joules = 1 kilowatt-hour"},
        {"Speed", "mile per hour", "kilometer per hour", "100",
         "100 miles per hour = 160.9344 kilometers per hour"},
        {"Temperature", "degree Celsius", "degree Fahrenheit", "",
         "0 degrees Celsius = 32 degrees Fahrenheit"},
        {"Temperature", "degree Celsius", "degree Fahrenheit", "-",
         "-0 degrees Celsius = 32 degrees Fahrenheit"},
        {"Temperature", "degree Fahrenheit", "degree Celsius", "-40",
         "-40 degrees Fahrenheit = -40 degrees Celsius"},
        {"Temperature", "degree Celsius", "kelvin", "1", "1 degree Celsius = 274.15 kelvins"},
        {"Temperature", "degree Fahrenheit", "degree Celsius", "32",
         "32 degrees Fahrenheit = 0 degrees Celsius"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.labels);
        keys("C");
        turn(row.quantity, row.from, row.to);
        keys(row.keys);
        EXPECT_EQ(labels(), row.labels);
        EXPECT_EQ(converter->faultText(), "");
    }
}

TEST_F(UnitConvert, explainsWhatIsNoNumberInsteadOfUsingIt) {
    struct Row {
        const char* keys;
        double read; ///< as far as it can be read
        const char* fault;
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const Row rows[] = {{"1.2.3", 1.2, "Only 1.2 of it is a number."},
                        {"5E", 5, "Only 5 of it is a number."},
                        {"7EE2", 7, "Only 7 of it is a number."},
                        {".", 0, ". is not a number."},
                        {"E5", 0, "E5 is not a number."},
                        {"5.E1", 50, ""},
                        {".5", 0.5, ""},
                        {"1E999", infinity, "The number is too large."},
                        {"1E308", 1e308, "The result is too large."},
                        {"1E02", 100, ""}};
    turn("Length", "kilometer", "millimeter");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.keys);
        keys("C");
        keys(row.keys);
        EXPECT_EQ(converter->fromQuantity(), row.read);
        EXPECT_EQ(converter->faultText(), row.fault);
        if (*row.fault != 0) {
            converter->buttonPressed("OK");
            EXPECT_EQ(alerts.alerts().back().message, row.fault);
            EXPECT_EQ(stack->topViewController(), converter);
            EXPECT_EQ(converter->fromQuantityString(), row.keys) << "nothing is lost";
        }
    }
    EXPECT_EQ(entry(), "");
}

TEST_F(UnitConvert, okPutsTheWholeNumberIntoTheLine) {
    press("2 *");
    turn("Length", "mile", "meter");
    keys("0.123456789");
    EXPECT_EQ(converter->rightSideText(), "198.68444 meters");
    converter->buttonPressed("OK");
    EXPECT_EQ(stack->topViewController(), keyboard);
    EXPECT_FALSE(Model::m().unitConverterIsPushed());
    press("=");
    const ComplexValue result = Model::m().history().entryAtIndex(0)->resultValue();
    EXPECT_DOUBLE_EQ(result.real(), 2 * 198.684442636416);
    openConverter();
    EXPECT_EQ(converter->fromQuantityString(), "");
    EXPECT_EQ(chosen(), "Length, mile, meter");
    keys("5");
    converter->buttonPressed("Cancel");
    EXPECT_EQ(stack->topViewController(), keyboard);
    EXPECT_EQ(entry(), "");
}

TEST_F(UnitConvert, okReachesTheCalculatorFromAnotherTab) {
    stack->pop();
    auto reference = std::make_shared<NavigationController>(std::make_shared<OtherScreen>());
    const auto tabs = std::make_shared<TabBarController>();
    tabs->setViewControllers({stack, reference});
    Model::m().setTabBarController(tabs);
    tabs->setSelectedIndex(1);
    reference->push(converter = std::make_shared<UnitConvertViewController>());
    turn("Length", "foot", "inch");
    converter->buttonPressed("OK");
    EXPECT_EQ(tabs->selectedIndex(), 0U);
    EXPECT_EQ(entry(), "(12)");
    EXPECT_FALSE(Model::m().unitConverterIsPushed()) << "it was not open over the calculator";
}

TEST_F(UnitConvert, remembersTheUnitsOfEachQuantity) {
    std::vector<int> reloaded;
    const Subscription subscription =
        converter->componentReloaded().subscribe([&](int wheel) { reloaded.push_back(wheel); });
    turn("Mass", "ounce", "gram");
    EXPECT_EQ(reloaded, (std::vector<int>{1, 2, 2}));
    turn(0, "Area");
    EXPECT_EQ(chosen(), "Area, square meter, square meter");
    turn(0, "Mass");
    EXPECT_EQ(chosen(), "Mass, ounce, gram");
    keys("3");
    converter->swapUnits();
    EXPECT_EQ(chosen(), "Mass, gram, ounce");
    EXPECT_EQ(converter->fromQuantityString(), "3");
    const std::string before = chosen();
    converter->pickerViewDidSelectRow(-1, 0);
    converter->pickerViewDidSelectRow(1000, 1);
    converter->pickerViewDidSelectRow(0, 3);
    EXPECT_EQ(chosen(), before);
    EXPECT_EQ(converter->titleForRow(1000, 0), "");
    stack->pop();
    openConverter();
    EXPECT_EQ(chosen(), before);
}

TEST_F(UnitConvert, followsTheSetOfUnitsOffered) {
    converter->settingsButtonPressed();
    EXPECT_NE(stack->topViewController(), converter);
    UnitConverterModel::ucm().setMoreUnits(true);
    stack->pop();
    turn("Magnetic field", "gauss", "tesla");
    keys("1E4");
    EXPECT_EQ(labels(), "1E4 gauss = 1 tesla");
    UnitConverterModel::ucm().setMoreUnits(false); // as from the settings' own tab
    stack->disappear();
    stack->appear();
    EXPECT_EQ(chosen(), "Length, meter, meter");
    EXPECT_EQ(labels(), "1E4 meters = 10000 meters");
}

TEST_F(UnitConvert, worksByAHardwareKeyboard) {
    for (const char* key : {"1", "2", ".", "5", "e", "-", "3", "-"}) {
        EXPECT_TRUE(converter->hardwareKey(key)) << key;
    }
    EXPECT_EQ(converter->fromQuantityString(), "-12.5E-3");
    converter->hardwareKey("Backspace");
    EXPECT_EQ(converter->fromQuantityString(), "-12.5E-");
    converter->hardwareKey("Delete");
    EXPECT_EQ(converter->fromQuantityString(), "");
    for (const char* key : {"x", ",", "F5", "", "12"}) {
        EXPECT_FALSE(converter->hardwareKey(key)) << key;
    }
    converter->hardwareKey("7");
    converter->hardwareKey("Enter");
    EXPECT_EQ(entry(), "(7)");
    openConverter();
    converter->hardwareKey("Escape");
    EXPECT_EQ(stack->topViewController(), keyboard);
}

TEST_F(UnitConvert, clicksWhereTheCalculatorDoes) {
    keys("1");
    EXPECT_EQ(sounds.played().size(), 0U);
    Model::m().setSoundIsOn(true);
    keys("2C");
    EXPECT_EQ(sounds.played().size(), 2U);
}

TEST_F(UnitConvert, keysStandSideBySide) {
    std::string characters;
    std::set<std::pair<int, int>> places;
    for (const UnitConvertKey& key : unitConvertKeys()) {
        characters += key.character;
        for (int column = key.column; column < key.column + key.columns; ++column) {
            EXPECT_TRUE(places.emplace(column, key.row).second) << key.character;
            EXPECT_LT(column, kUnitConvertKeyColumns);
            EXPECT_LT(key.row, kUnitConvertKeyRows);
        }
    }
    EXPECT_EQ(places.size(), std::size_t(kUnitConvertKeyColumns * kUnitConvertKeyRows)) << "no gap";
    EXPECT_EQ(characters, "1234567890.-ECDXO");
    std::string grounds;
    for (const char character : characters) {
        grounds += backgroundUnicharWithTitleUnichar(character);
    }
    EXPECT_EQ(grounds, "bbbbbbbbbrbaaggkk");
    EXPECT_EQ(backgroundUnicharWithTitleUnichar('S'), 'a');
    EXPECT_TRUE(logHolds("problem in method backgroundUnicharWithTitleUnichar"));
}

} // namespace
} // namespace velmora::test
