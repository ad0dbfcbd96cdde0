#include "tools/units/UnitConverter.h"

#include "engine/environment/Environment.h"
#include "platform/files/Resources.h"
#include "platform/machine/DocumentsFolder.h"
#include "resources/CompiledResources.h"
#include "tests/engine/UlpDistance.h"
#include "tests/platform/files/TemporaryFolder.h"
#include "tests/platform/text/LogRecorder.h"
#include "tools/units/OffsetLinearUnitConverter.h"
#include "tools/units/UnitConverterModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace velmora {
namespace {

TEST(UnitConverter, readsItsTexts) {
    struct Row {
        const char* text;
        const char* name;
        const char* plural;
        const char* abbreviation;
        double factor;
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const Row rows[] = {{"foot=0.3048|feet#ft", "foot", "feet", "ft", 0.3048},
                        {"meter#m", "meter", "meters", "m", 1},
                        {"mile per hour=0.44704#mph", "mile per hour", "miles per hour", "mph", 0.44704},
                        {"gallon (US)=3.8#gal", "gallon (US)", "gallons (US)", "gal", 3.8},
                        {"pint (US) per hour=2#pt", "pint (US)s per hour", "", "pt", 2},
                        {"a=+1.5E3xyz#b#c", "a", "as", "b#c", 1500},
                        {"nothing=#n", "nothing", "nothings", "n", 0},
                        {"huge=-1E400x#h", "huge", "huges", "h", -infinity},
                        {"tiny=-1E-400#t", "tiny", "tinys", "t", 0},
                        {"inf=inf#i", "inf", "infs", "i", 0},
                        {"nan=-nan#n", "nan", "nans", "n", 0}};
    for (const Row& row : rows) {
        const auto converter = UnitConverter::newConverterWithArray({"Quantity", "main", row.text});
        ASSERT_TRUE(converter);
        if (*row.plural == 0) { // of a " per" and a " (" the first counts
            EXPECT_EQ(converter->pluralUnitNames()[0], row.name);
        } else {
            EXPECT_EQ(converter->unitNames()[0], row.name);
            EXPECT_EQ(converter->pluralUnitNames()[0], row.plural);
        }
        EXPECT_EQ(converter->unitAbbreviations()[0], row.abbreviation);
        EXPECT_EQ(converter->unitConversions()[0], row.factor);
    }
    EXPECT_EQ(UnitConverter::newConverterWithArray({"Length", "meter"}), nullptr);
    const LogRecorder log;
    EXPECT_TRUE(UnitConverter::newConverterWithArray({"Length", "meter", "foot=0.3048"}));
    EXPECT_THAT(log.lines(), testing::Contains("Missing abbreviation in string foot=0.3048"));
}

TEST(UnitConverter, answersBeyondItsUnits) {
    const LogRecorder log;
    PlainEnvironment environment;
    const EnvironmentScope scope(environment);
    const auto length =
        UnitConverter::newConverterWithArray({"Length", "meter", "meter#m", "foot=0.3048|feet#ft"});
    const auto degrees = UnitConverter::newConverterWithArray(
        {"Temperature++", "C", "Celsius#°C", "Fahrenheit=0.5555555555555556#°F++32", "kelvin#K++273.15"});
    for (const int wrong : {-1, 2, 3, 1000}) {
        EXPECT_EQ(length->oneOfUnitAtIndex(wrong, 0), 0);
        EXPECT_EQ(length->quantity(5, 0, wrong), 0);
        EXPECT_EQ(length->abbreviationForUnitAtIndex(wrong), std::nullopt);
        EXPECT_EQ(length->nameForQuantity(1, wrong), std::nullopt);
        EXPECT_TRUE(std::isnan(degrees->quantity(5, 0, wrong == 2 ? 3 : wrong)));
    }
    EXPECT_EQ(environment.alertCount, 4);
    EXPECT_EQ(environment.lastAlert, "DEBUG ALERT: No good!");
    EXPECT_EQ(log.lines(), std::vector<std::string>(4, "DEBUG ALERT: No good!"));
    for (const double quantity : {1.0, -1.0, 0.0, 2.0, 1.5}) {
        EXPECT_EQ(length->nameForQuantity(quantity, 1), std::abs(quantity) == 1 ? "foot" : "feet");
    }
    EXPECT_EQ(degrees->unitsOfWhat(), "Temperature");
    EXPECT_EQ(degrees->quantity(32, 1, 0), 0); // exactly
    EXPECT_NEAR(degrees->quantity(300, 2, 0), 26.85, 1e-12);
    EXPECT_EQ(degrees->quantity(32, 2, 2), 32) << "only a rounding error vanishes";
}

/// The units that ship, with the extended set.
class Units : public testing::Test {
protected:
    Units() {
        registerCompiledResources();
        UnitConverterModel::resetForTests();
        model().setMoreUnits(true);
    }
    ~Units() override { UnitConverterModel::resetForTests(); }
    static UnitConverterModel& model() { return UnitConverterModel::ucm(); }

    LogRecorder log;
};

/// Every pair of different units of every quantity.
template <class Check> void forEveryPair(UnitConverterModel& model, const Check& check) {
    for (const auto& quantity : model.unitConverterArray()) {
        const int count = static_cast<int>(quantity->unitNames().size());
        for (int pair = 0; pair < count * count; ++pair) {
            if (pair / count != pair % count) {
                SCOPED_TRACE(quantity->unitNames()[static_cast<std::size_t>(pair / count)] + " in " +
                             quantity->unitNames()[static_cast<std::size_t>(pair % count)]);
                check(*quantity, pair / count, pair % count);
            }
        }
    }
}

TEST_F(Units, standInAWholeTable) {
    EXPECT_EQ(model().unitConverterArray().size(), 29U);
    EXPECT_THAT(log.lines(), testing::ElementsAre("starting converter load", "converter load done"));
    for (const auto& quantity : model().unitConverterArray()) {
        EXPECT_THAT(quantity->unitNames(), testing::Contains(quantity->mainUnit()))
            << quantity->unitsOfWhat();
    }
}

TEST_F(Units, areOneWhereAWholeNumberOfAnotherMakesOne) {
    // 3600000 joules are 1 kilowatt-hour and nothing near it: the name that follows depends on it.
    int pairs = 0;
    forEveryPair(model(), [&](const UnitConverter& quantity, int from, int to) {
        if (quantity.unitsOfWhat() == "Temperature") {
            return;
        }
        const double ratio = quantity.oneOfUnitAtIndex(to, from);
        const double whole = std::round(ratio);
        constexpr double largest = 1e14; // beyond, any ratio looks whole
        if (whole > 1 && whole <= largest && std::abs(ratio - whole) <= 4e-16 * whole) {
            ++pairs;
            EXPECT_EQ(quantity.quantity(whole, from, to), 1) << whole;
            EXPECT_EQ(quantity.quantity(-whole, from, to), -1) << whole;
            EXPECT_EQ(quantity.quantity(1, to, from), whole);
        }
    });
    EXPECT_GE(pairs, 322);
    // Of the exact 1, also where the number itself is no whole double: the light-year in micrometers.
    const auto& length = *model().unitConverterArray().front();
    const auto unit = [&](const char* name) {
        return static_cast<int>(std::ranges::find(length.unitNames(), name) - length.unitNames().begin());
    };
    EXPECT_EQ(length.quantity(9.4607304725808e21, unit("micrometer"), unit("light-year")), 1);
    EXPECT_EQ(length.quantity(1.609344, unit("kilometer"), unit("mile")), 1);
}

TEST_F(Units, giveBackWhatWasTyped) {
    const double typed[] = {1,    0.1,    -3,      2.54,       98.6,        1234.5678,   9.99,
                            1e-5, 1.6e25, 8.10001, 3.14159265, 99999.99999, 720.0000001, 0.333333333333};
    forEveryPair(model(), [&](const UnitConverter& quantity, int from, int to) {
        for (const double number : typed) {
            const double there = quantity.quantity(number, from, to);
            // A scale's zero can swallow the digits of a small number, and a large one hides the zero.
            const bool fits =
                quantity.unitsOfWhat() != "Temperature" || (std::abs(number) >= 1 && std::abs(number) < 1e5);
            if (fits) {
                EXPECT_EQ(quantity.quantity(there, to, from), number);
            }
            if (fits && quantity.unitsOfWhat() != "Temperature") {
                // What was taken away is no more than a rounding error.
                EXPECT_LE(ulpDistance(there, number * quantity.oneOfUnitAtIndex(from, to)), 8);
            }
        }
    });
}

TEST_F(Units, haveTheirDefinedSizes) {
    // In SI units (bits for data, 1/s for rates), from the SI brochure and NIST SP 811.
    struct UnitSize {
        std::string_view name;
        double size;
    };
    // clang-format off
    const UnitSize sizes[] = {
        {"inch", 0.0254}, {"mile", 1609.344}, {"nautical mile", 1852}, {"furlong", 201.168},
        {"fluid ounce (US)", 2.95735295625e-5}, {"acre", 4046.8564224}, {"hectare", 1e4},
        {"square mile", 2589988.110336}, {"gallon (US)", 0.003785411784}, {"gallon (imperial)", 0.00454609},
        {"cubic foot", 0.028316846592}, {"barrel (oil)", 0.158987294928},
        {"tablespoon (US)", 1.478676478125e-5}, {"cup (US)", 2.365882365e-4},
        {"teaspoon (US)", 4.92892159375e-6}, {"pound", 0.45359237}, {"ounce", 0.028349523125},
        {"stone", 6.35029318}, {"short ton", 907.18474}, {"grain", 6.479891e-5},
        {"slug", 14.593902937206364}, {"week", 604800}, {"kilometer per hour", 1 / 3.6},
        {"mile per hour", 0.44704}, {"knot", 0.5144444444444445}, {"standard gravity", 9.80665},
        {"pound-force", 4.4482216152605}, {"atmosphere", 101325},
        {"pound per square inch", 6894.757293168361}, {"torr", 133.32236842105263},
        {"millimeter of mercury", 133.322387415}, {"British thermal unit", 1055.05585262},
        {"foot-pound", 1.3558179483314004}, {"kilocalorie", 4184}, {"kilowatt-hour", 3.6e6},
        {"horsepower", 745.6998715822702}, {"metric horsepower", 735.49875},
        {"degree", 0.017453292519943295}, {"gradian", 0.015707963267948967},
        {"arcsecond", 4.84813681109536e-6}, {"revolution per minute", 1.0 / 60}, {"mebibyte", 8388608},
        {"gigabyte", 8e9}, {"pound per cubic foot", 16.018463373960142},
        {"cubic foot per minute", 4.719474432e-4}, {"ampere-hour", 3600},
        {"foot-candle", 10.763910416709722}, {"curie", 3.7e10}, {"stokes", 1e-4}, {"gauss", 1e-4},
        {"electronvolt", 1.602176634e-19}};
    // clang-format on
    std::set<std::string_view> found;
    for (const auto& quantity : model().unitConverterArray()) {
        for (std::size_t unit = 0; unit < quantity->unitNames().size(); ++unit) {
            const auto* size = std::ranges::find(sizes, quantity->unitNames()[unit], &UnitSize::name);
            if (size != std::end(sizes)) {
                EXPECT_LE(ulpDistance(quantity->unitConversions()[unit], size->size), 1) << size->name;
                found.insert(size->name);
            }
        }
    }
    EXPECT_EQ(found.size(), std::size(sizes));
    // 1 mpg (US) is 235.214583 L on 100 km.
    for (const auto& quantity : model().unitConverterArray()) {
        if (quantity->unitsOfWhat() == "Fuel economy") {
            EXPECT_NEAR(100 / quantity->quantity(1, 1, 0), 235.214583, 1e-6);
        }
    }
}

TEST_F(Units, meetWhereTheScalesOfTemperatureDo) {
    const auto& temperature =
        *std::ranges::find(model().unitConverterArray(), "Temperature",
                           [](const auto& quantity) { return quantity->unitsOfWhat(); });
    enum : int { kCelsius, kFahrenheit, kKelvin, kRankine };
    struct Row {
        double q;
        int from, to;
        double expected;
    };
    const Row rows[] = {{-459.67, kFahrenheit, kKelvin, 0}, {0, kRankine, kKelvin, 0},
                        {-273.15, kCelsius, kKelvin, 0},    {-459.67, kFahrenheit, kRankine, 0},
                        {0, kKelvin, kRankine, 0},          {-273.15, kCelsius, kRankine, 0},
                        {0, kCelsius, kKelvin, 273.15},     {0, kCelsius, kRankine, 491.67},
                        {0, kCelsius, kFahrenheit, 32},     {32, kFahrenheit, kCelsius, 0},
                        {100, kCelsius, kFahrenheit, 212},  {212, kFahrenheit, kCelsius, 100},
                        {-40, kCelsius, kFahrenheit, -40},  {-40, kFahrenheit, kCelsius, -40},
                        {37, kCelsius, kFahrenheit, 98.6},  {37, kCelsius, kCelsius, 37}};
    for (const Row& row : rows) {
        EXPECT_EQ(temperature->quantity(row.q, row.from, row.to), row.expected)
            << row.q << " of unit " << row.from << " in " << row.to;
    }
}

TEST_F(Units, whatHoldsNoUnitsIsLeftOutWithAWord) {
    const ResourcesScope own;
    const std::string_view resources[] = {
        "<plist><array><array/><string>Length</string>"
        "<array><string>Mass</string><string>gram</string><string>+gram#g</string></array>"
        "<array><string>+Time</string><string>second</string><string>second#s</string></array>"
        "<array><string>Area</string><string>are</string><string>are#a</string></array></array></plist>",
        "<plist><string>Length</string></plist>"};
    const std::size_t faults[] = {3, 1}; // a quantity hidden on purpose is none
    for (std::size_t i = 0; i < 2; ++i) {
        registerResource("Units.plist", resources[i]);
        UnitConverterModel::resetForTests();
        const LogRecorder heard;
        EXPECT_EQ(model().unitConverterArray().size(), i == 0 ? 1U : 0U);
        EXPECT_EQ(heard.lines().size(), 2 + faults[i]);
    }
}

TEST_F(Units, theExtendedSetComesAndGoes) {
    const std::size_t all = model().unitConverterArray().size();
    const auto length = [] { return UnitConverterModel::ucm().unitConverterArray()[0]->unitNames().size(); };
    const std::size_t allLengths = length();
    EXPECT_TRUE(model().setValueForKey("moreUnits", PropertyList(0))); // the index of a choice
    EXPECT_LT(model().unitConverterArray().size(), all);
    EXPECT_LT(length(), allLengths);
    EXPECT_FALSE(model().setValueForKey("moreUnits", PropertyList(2)));
    EXPECT_FALSE(model().setValueForKey("other", PropertyList(true)));
}

TEST_F(Units, choicesAreKeptByName) {
    const TemporaryFolder home;
    PlainDocumentsFolder folder(home.path());
    const DocumentsFolderScope scope(folder);
    EXPECT_EQ(model().selectedPickerRowForComponent(1, 4), 0);
    model().setSelectedQuantityIndex(4);
    model().selectPickerRow(2, 1, 4);
    model().selectPickerRow(5, 2, 4);
    model().selectPickerRow(500, 2, 4); // a fault, which changes nothing
    model().save();
    UnitConverterModel::resetForTests();
    EXPECT_TRUE(model().moreUnits());
    EXPECT_EQ(model().selectedQuantityIndex(), 4);
    EXPECT_EQ(model().selectedPickerRowForComponent(1, 4), 2);
    EXPECT_EQ(model().selectedPickerRowForComponent(2, 4), 5);
    EXPECT_EQ(model().selectedPickerRowForComponent(2, 500), 0);
    model().setSelectedQuantityIndex(500);
    EXPECT_EQ(model().selectedQuantityName(), std::nullopt);
    EXPECT_EQ(model().selectedQuantityIndex(), 0);
    const auto file = *UnitConverterModel::ucDataFilePath();
    std::filesystem::remove(file);
    std::filesystem::create_directory(file); // which cannot be read
    UnitConverterModel::resetForTests();
    EXPECT_FALSE(model().moreUnits());
    EXPECT_FALSE(std::filesystem::exists(file)) << "it is set aside";
}

} // namespace
} // namespace velmora
