#include "calculator/model/ModelProperties.h"

#include "calculator/model/Model.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr int kNoLimit = std::numeric_limits<int>::max();

bool asBoolean(const PropertyList& value) {
    return value.asBool().value_or(value.asInteger().value_or(0) != 0);
}

template <auto get, auto set> constexpr ModelProperty boolean(std::string_view key) {
    return {.key = key,
            .type = PropertyType::Boolean,
            .get = [](const Model& model) { return PropertyList((model.*get)()); },
            .set = [](Model& model, const PropertyList& value) { (model.*set)(asBoolean(value)); },
            .minimum = 0,
            .maximum = 1};
}

template <auto get, auto set>
constexpr ModelProperty integer(std::string_view key, int minimum, int maximum) {
    return {.key = key,
            .type = PropertyType::Integer,
            .get = [](const Model& model) { return PropertyList((model.*get)()); },
            .set =
                [](Model& model, const PropertyList& value) {
                    (model.*set)(static_cast<int>(value.asInteger().value_or(0)));
                },
            .minimum = static_cast<double>(minimum),
            .maximum = static_cast<double>(maximum)};
}

template <auto get, auto set> constexpr ModelProperty number(std::string_view key) {
    return {
        .key = key,
        .type = PropertyType::Number,
        .get = [](const Model& model) { return PropertyList((model.*get)()); },
        .set = [](Model& model, const PropertyList& value) { (model.*set)(value.asDouble().value_or(0)); }};
}

template <auto get, auto set> constexpr ModelProperty fraction(std::string_view key) {
    ModelProperty row = number<get, set>(key);
    row.minimum = 0;
    row.maximum = 1;
    return row;
}

using M = Model;
constexpr std::array kProperties{
    integer<&M::maxDigitsForDecimalNotation, &M::setMaxDigitsForDecimalNotation>(
        "maxDigitsForDecimalNotation", 1, 10),
    boolean<&M::sameScaleXAndY, &M::setSameScaleXAndY>("sameScaleXAndY"),
    integer<&M::displayDigits, &M::setDisplayDigits>("displayDigits", 2, 12),
    boolean<&M::soundIsOn, &M::setSoundIsOn>("soundIsOn"),
    fraction<&M::soundVolume, &M::setSoundVolume>("soundVolume"),
    number<&M::xMinForGraph, &M::setXMinForGraph>("xMinForGraph"),
    number<&M::xMaxForGraph, &M::setXMaxForGraph>("xMaxForGraph"),
    number<&M::yMinForGraph, &M::setYMinForGraph>("yMinForGraph"),
    number<&M::yMaxForGraph, &M::setYMaxForGraph>("yMaxForGraph"),
    number<&M::tStartForParametricGraph, &M::setTStartForParametricGraph>("tStartForParametricGraph"),
    number<&M::tEndForParametricGraph, &M::setTEndForParametricGraph>("tEndForParametricGraph"),
    number<&M::thetaStartForPolarGraph, &M::setThetaStartForPolarGraph>("thetaStartForPolarGraph"),
    number<&M::thetaEndForPolarGraph, &M::setThetaEndForPolarGraph>("thetaEndForPolarGraph"),
    boolean<&M::putLabelsOnGraph, &M::setPutLabelsOnGraph>("putLabelsOnGraph"),
    boolean<&M::shakeToResetGraph, &M::setShakeToResetGraph>("shakeToResetGraph"),
    boolean<&M::unitConverterIsPushed, &M::setUnitConverterIsPushed>("unitConverterIsPushed"),
    boolean<&M::trailingZeroes, &M::setTrailingZeroes>("trailingZeroes"),
    boolean<&M::commasInNumbers, &M::setCommasInNumbers>("commasInNumbers"),
    integer<&M::angleMode, &M::setAngleMode>("angleMode", 0, 1),
    integer<&M::graphType, &M::setGraphType>("graphType", 0, 2),
    integer<&M::graphGridLineType, &M::setGraphGridLineType>("graphGridLineType", 0, 1),
    boolean<&M::graphBackgroundIsBlack, &M::setGraphBackgroundIsBlack>("graphBackgroundIsBlack"),
    integer<&M::whichKeyboard, &M::setWhichKeyboard>("whichKeyboard", 0, 1),
    boolean<&M::roundSmallPartsOfComplexNumbers, &M::setRoundSmallPartsOfComplexNumbers>(
        "roundSmallPartsOfComplexNumbers"),
    boolean<&M::iOnMainKeyboard, &M::setIOnMainKeyboard>("iOnMainKeyboard"),
    integer<&M::displayMode, &M::setDisplayMode>("displayMode", 0, 3),
    boolean<&M::largeFontsOnPhone, &M::setLargeFontsOnPhone>("largeFontsOnPhone"),
    integer<&M::orientationMode, &M::setOrientationMode>("orientationMode", 0, 2),
    boolean<&M::settingsHaveBeenAccessed, &M::setSettingsHaveBeenAccessed>("settingsHaveBeenAccessed"),
    integer<&M::nHasBecomeActive, &M::setNHasBecomeActive>("nHasBecomeActive", 0, kNoLimit),
    integer<&M::pickerSelectedUnitIndex, &M::setPickerSelectedUnitIndex>("pickerSelectedUnitIndex", 0,
                                                                         kNoLimit),
};

} // namespace

std::span<const ModelProperty> modelProperties() { return kProperties; }

const ModelProperty* modelProperty(std::string_view key) {
    const auto* found = std::ranges::find(kProperties, key, &ModelProperty::key);
    return found == kProperties.end() ? nullptr : found;
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
