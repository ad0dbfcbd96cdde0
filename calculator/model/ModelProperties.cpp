#include "calculator/model/ModelProperties.h"

#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/Model.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <utility>

namespace velmora {

namespace {

bool asBoolean(const PropertyList& value) {
    return value.asBool().value_or(value.asInteger().value_or(0) != 0);
}

template <auto get> PropertyList read(const Model& model) { return (model.*get)(); }

template <auto get, auto set>
ModelProperty boolean(std::string_view key, bool byDefault, const char* archiveKey, SettingLook look = {}) {
    return {.key = key,
            .type = PropertyType::Boolean,
            .get = read<get>,
            .set = [](Model& model, const PropertyList& value) { (model.*set)(asBoolean(value)); },
            .minimum = 0,
            .maximum = 1,
            .byDefault = byDefault,
            .archiveKey = archiveKey,
            .look = std::move(look)};
}

struct Range {
    int minimum;
    int maximum;
};

template <auto get, auto set>
ModelProperty integer(std::string_view key, Range range, int byDefault, const char* archiveKey,
                      SettingLook look = {}) {
    return {.key = key,
            .type = PropertyType::Integer,
            .get = read<get>,
            .set =
                [](Model& model, const PropertyList& value) {
                    (model.*set)(static_cast<int>(value.asInteger().value_or(0)));
                },
            .minimum = static_cast<double>(range.minimum),
            .maximum = static_cast<double>(range.maximum),
            .byDefault = byDefault,
            .archiveKey = archiveKey,
            .look = std::move(look)};
}

template <auto get, auto set>
ModelProperty number(std::string_view key, double byDefault, const char* archiveKey, SettingLook look = {}) {
    return {
        .key = key,
        .type = PropertyType::Number,
        .get = read<get>,
        .set = [](Model& model, const PropertyList& value) { (model.*set)(value.asDouble().value_or(0)); },
        .byDefault = byDefault,
        .archiveKey = archiveKey,
        .look = std::move(look)};
}

constexpr const char* kRoundingExplanation =
    "Roundoff errors in complex math occur frequently and can be annoying.  If this option is on, the real "
    "and complex parts of every result will be rounded to zero if their absolute value is less than 10^-12.";

// Sections of the settings.
constexpr int kCalculator = 0;
constexpr int kKeyboard = 1;
constexpr int kGraph = 2;
constexpr int kPolar = 3;
constexpr int kParametric = 4;
constexpr int kComplex = 5;

// Of some, the file holds more than the value, or the value is not taken from it.
constexpr const char* kOwnRule = nullptr;

// The archive keys are those of files that people have; none may ever change its meaning.
std::vector<ModelProperty> makeProperties() {
    using M = Model;
    using enum SettingKind;
    constexpr int noLimit = std::numeric_limits<int>::max();
    const int lastGraphType = static_cast<int>(graphTypeTable().size()) - 1;
    std::vector<ModelProperty> rows{
        integer<&M::angleMode, &M::setAngleMode>("angleMode", {0, 1}, 0, "Angle Mode",
                                                 {kCalculator, ListPick, "Angles", {"Radians", "Degrees"}}),
        integer<&M::maxDigitsForDecimalNotation, &M::setMaxDigitsForDecimalNotation>(
            "maxDigitsForDecimalNotation", {1, 10}, 9, "maxDigitsForDecimalNotationKey",
            {kCalculator, Integer, "Max digits for decimal notation"}),
        integer<&M::displayDigits, &M::setDisplayDigits>("displayDigits", {2, 12}, 5, "displayDigitsKey",
                                                         {kCalculator, Integer, "Display decimal places"}),
        // Intended: at every start zeroes do not trail.
        boolean<&M::trailingZeroes, &M::setTrailingZeroes>("trailingZeroes", false, kOwnRule,
                                                           {kCalculator, Switch, "Trailing zeroes"}),
        boolean<&M::commasInNumbers, &M::setCommasInNumbers>("commasInNumbers", false, "commasInNumbersKey",
                                                             {kCalculator, Switch, "Commas in numbers"}),
        integer<&M::orientationMode, &M::setOrientationMode>(
            "orientationMode", {0, 2}, 0, "orientationModeKey",
            {kCalculator, Segmented, "Allowed orientations", {"Portrait", "Landscape", "Both"}}),

        boolean<&M::soundIsOn, &M::setSoundIsOn>("soundIsOn", false, "soundIsOnKey",
                                                 {kKeyboard, Switch, "Button click sound"}),
        integer<&M::whichKeyboard, &M::setWhichKeyboard>(
            "whichKeyboard", {0, 1}, 0, "WhichKeyboard",
            {kKeyboard, ListPick, "Portrait Layout", {"standard", "alternate"}}),
        integer<&M::displayMode, &M::setDisplayMode>(
            "displayMode", {0, 3}, 1, kOwnRule,
            {kKeyboard, ListPick, "Portrait Display", {"Small Keys", "Large Keys"}}),
        boolean<&M::largeFontsOnPhone, &M::setLargeFontsOnPhone>(
            "largeFontsOnPhone", false, "LargeFontsOnPhoneKey",
            {kKeyboard, Segmented, "Fonts", {"Normal", "Large"}}),

        integer<&M::graphType, &M::setGraphType>("graphType", {0, lastGraphType}, 0, "Graph Mode",
                                                 {kGraph, ListPick, "Type of Graph", graphTypeChoices()}),
        number<&M::xMinForGraph, &M::setXMinForGraph>("xMinForGraph", 0, kOwnRule, {kGraph, Double, "Min X"}),
        number<&M::xMaxForGraph, &M::setXMaxForGraph>("xMaxForGraph", 0, kOwnRule, {kGraph, Double, "Max X"}),
        number<&M::yMinForGraph, &M::setYMinForGraph>("yMinForGraph", 0, kOwnRule, {kGraph, Double, "Min Y"}),
        number<&M::yMaxForGraph, &M::setYMaxForGraph>("yMaxForGraph", 0, kOwnRule, {kGraph, Double, "Max Y"}),
        boolean<&M::sameScaleXAndY, &M::setSameScaleXAndY>("sameScaleXAndY", false, "SameScaleXAndYKey",
                                                           {kGraph, Switch, "Same scale X&Y"}),
        boolean<&M::putLabelsOnGraph, &M::setPutLabelsOnGraph>(
            "putLabelsOnGraph", true, "PutLabelsOnGraphKey", {kGraph, Switch, "Graph Labels"}),
        boolean<&M::shakeToResetGraph, &M::setShakeToResetGraph>("shakeToResetGraph", true, "ShakeToResetKey",
                                                                 {kGraph, Switch, "Shake to Reset"}),
        integer<&M::graphGridLineType, &M::setGraphGridLineType>(
            "graphGridLineType", {0, 1}, 0, "GraphGridLinetype",
            {kGraph, ListPick, "Grid Lines", {"Close together", "Far apart"}}),
        boolean<&M::graphBackgroundIsBlack, &M::setGraphBackgroundIsBlack>(
            "graphBackgroundIsBlack", false, "GraphBackgroundIsBlack",
            {kGraph, Segmented, "Graph Background", {"White", "Black"}}),

        number<&M::thetaStartForPolarGraph, &M::setThetaStartForPolarGraph>(
            "thetaStartForPolarGraph", 0, "thetaStartForPolarGraph", {kPolar, Double, "Starting θ"}),
        number<&M::thetaEndForPolarGraph, &M::setThetaEndForPolarGraph>(
            "thetaEndForPolarGraph", 2 * std::numbers::pi, "thetaEndForPolarGraph",
            {kPolar, Double, "Ending θ"}),
        number<&M::tStartForParametricGraph, &M::setTStartForParametricGraph>(
            "tStartForParametricGraph", 0, "tStartForParametricGraph", {kParametric, Double, "Starting t"}),
        number<&M::tEndForParametricGraph, &M::setTEndForParametricGraph>(
            "tEndForParametricGraph", 1, "tEndForParametricGraph", {kParametric, Double, "Ending t"}),

        boolean<&M::roundSmallPartsOfComplexNumbers, &M::setRoundSmallPartsOfComplexNumbers>(
            "roundSmallPartsOfComplexNumbers", true, "RoundComplexNumbers",
            {kComplex, Switch, "Round small parts", {}, kRoundingExplanation}),
        boolean<&M::iOnMainKeyboard, &M::setIOnMainKeyboard>("iOnMainKeyboard", false, kOwnRule,
                                                             {kComplex, Switch, "i on main keyboard"}),

        number<&M::soundVolume, &M::setSoundVolume>("soundVolume", 0.3, kOwnRule),
        boolean<&M::unitConverterIsPushed, &M::setUnitConverterIsPushed>("unitConverterIsPushed", false,
                                                                         "UnitConverterIsPushed"),
        boolean<&M::settingsHaveBeenAccessed, &M::setSettingsHaveBeenAccessed>(
            "settingsHaveBeenAccessed", false, "settingsHaveBeenAccessedKey"),
        integer<&M::nHasBecomeActive, &M::setNHasBecomeActive>("nHasBecomeActive", {0, noLimit}, 0, kOwnRule),
        integer<&M::pickerSelectedUnitIndex, &M::setPickerSelectedUnitIndex>("pickerSelectedUnitIndex",
                                                                             {0, noLimit}, 0, kOwnRule),
    };
    const auto volume = std::ranges::find(rows, "soundVolume", &ModelProperty::key);
    volume->minimum = 0;
    volume->maximum = 1;
    return rows;
}

} // namespace

std::span<const ModelProperty> modelProperties() {
    static const std::vector<ModelProperty> rows = makeProperties();
    return rows;
}

const ModelProperty* modelProperty(std::string_view key) {
    const auto rows = modelProperties();
    const auto found = std::ranges::find(rows, key, &ModelProperty::key);
    return found == rows.end() ? nullptr : &*found;
}

bool accepts(const ModelProperty& property, const PropertyList& value) {
    std::optional<double> number;
    switch (property.type) {
    case PropertyType::Boolean:
        if (value.asBool()) {
            return true;
        }
        [[fallthrough]];
    case PropertyType::Integer:
        if (const auto whole = value.asInteger()) {
            number = static_cast<double>(*whole);
        }
        break;
    case PropertyType::Number:
        number = value.asDouble();
        break;
    }
    return number && std::isfinite(*number) && *number >= property.minimum && *number <= property.maximum;
}

} // namespace velmora
