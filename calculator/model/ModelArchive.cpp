#include "calculator/model/ModelArchive.h"

#include "calculator/model/ArchiveKeys.h"
#include "calculator/model/ConstantName.h"
#include "calculator/model/Model.h"
#include "calculator/model/ModelProperties.h"
#include "platform/files/KeyedArchive.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr std::size_t kLeastInequalities = 4;
constexpr int kTabletDefaultDisplayMode = 1;

/// A list of lines.
struct ListRow {
    const char* key;
    ExpressionList& (*list)(Model&);
};

// The constants stand before the history, whose lines may name them.
constexpr std::array kLists{
    ListRow{"ModelEquationTokenArrays", [](Model& m) -> ExpressionList& { return m.equations(); }},
    ListRow{"ParametricXTokenArrays", [](Model& m) -> ExpressionList& { return m.parametricX(); }},
    ListRow{"ParametricYTokenArrays", [](Model& m) -> ExpressionList& { return m.parametricY(); }},
    ListRow{"PolarRTokenArrays", [](Model& m) -> ExpressionList& { return m.polarR(); }},
    ListRow{"ConstantsArrays", [](Model& m) -> ExpressionList& { return m.constants(); }},
    ListRow{kHistoryArchiveKey, [](Model& m) -> ExpressionList& { return m.history(); }},
    ListRow{"impliedFunctionsTokenArrays", [](Model& m) -> ExpressionList& { return m.impliedFunctions(); }},
};

// The ends of a curve's variable: a range of which one end is no number is no range.
constexpr std::array kVariableRanges{std::array{"tStartForParametricGraph", "tEndForParametricGraph"},
                                     std::array{"thetaStartForPolarGraph", "thetaEndForPolarGraph"}};

constexpr const char* kImpliedFunctionHeights = "impliedFunctionsLevelCurveHeights";
constexpr const char* kConstantNames = "ConstantsNameArrays";
constexpr const char* kInequalities = "InequalityArrayKey";
constexpr const char* kHalfTypedLine = "HalfTypedLineKey";
constexpr const char* kDisplayMode = "displayModeEnumKey";
// Beside the mode in force, which on a phone says nothing of the choice.
constexpr const char* kDisplayModeOnTablet = "displayModeOnTabletKey";
constexpr const char* kSelectedTab = "SelectedTabKey";
constexpr const char* kActivations = "nHasBecomeActiveKey";
constexpr const char* kLetterIOnMainKeyboard = "iOnMainKeyboard";
// Of earlier releases: still read, no longer written.
constexpr const char* kPickerRows = "SelectedUnitConverterPickerRows";
constexpr const char* kPickerUnit = "PickerSelectedUnitIndex";

constexpr std::array kBoundKeys{"xMinForGraphKey", "xMaxForGraphKey", "yMinForGraphKey", "yMaxForGraphKey"};

// A switch is no number here, nor a number a switch.
bool isOfType(const ModelProperty& property, const PropertyList& value) {
    return (property.type == PropertyType::Boolean) == value.asBool().has_value();
}

bool isEndOfBrokenRange(std::string_view key, const KeyedUnarchiver& coder) {
    const auto isBroken = [&](const char* end) {
        const auto number = coder.number(end);
        return number && !std::isfinite(*number);
    };
    return std::ranges::any_of(kVariableRanges, [&](const auto& ends) {
        return std::ranges::find(ends, key) != ends.end() && std::ranges::any_of(ends, isBroken);
    });
}

void loadSettings(Model& model, const KeyedUnarchiver& coder) {
    for (const ModelProperty& property : modelProperties()) {
        if (!property.archiveKey) {
            continue;
        }
        const PropertyList* saved = coder.value(property.archiveKey);
        const bool usable = saved && isOfType(property, *saved) && accepts(property, *saved) &&
                            !isEndOfBrokenRange(property.archiveKey, coder);
        property.set(model, usable ? *saved : property.byDefault);
    }
}

/// A tablet's; a phone has only one, which the model knows by itself.
void loadDisplayMode(Model& model, const KeyedUnarchiver& coder) {
    const auto choice = coder.integer(kDisplayModeOnTablet);
    const std::int64_t saved =
        choice ? *choice : coder.integer(kDisplayMode).value_or(kTabletDefaultDisplayMode);
    const bool known = accepts(*modelProperty("displayMode"), PropertyList(saved));
    model.setDisplayMode(known ? static_cast<int>(saved) : kTabletDefaultDisplayMode);
}

void loadActivations(Model& model, const KeyedUnarchiver& coder) {
    const std::int64_t saved = coder.integer(kActivations).value_or(0);
    const bool known = accepts(*modelProperty("nHasBecomeActive"), PropertyList(saved));
    model.addActivations(known ? static_cast<int>(saved) : 0);
}

/// All four or none: a file without the first has no range.
void loadGraphBounds(Model& model, const KeyedUnarchiver& coder) {
    std::array<double, kBoundKeys.size()> bounds{};
    std::ranges::transform(kBoundKeys, bounds.begin(),
                           [&](const char* key) { return coder.number(key).value_or(0); });
    const bool usable = coder.number(kBoundKeys.front()) &&
                        std::ranges::all_of(bounds, [](double bound) { return std::isfinite(bound); });
    if (!usable) {
        model.resetGraphBounds();
        return;
    }
    const auto [xMin, xMax, yMin, yMax] = bounds;
    model.setXMinForGraph(xMin);
    model.setXMaxForGraph(xMax);
    model.setYMinForGraph(yMin);
    model.setYMaxForGraph(yMax);
}

void loadConstantNames(Model& model, const KeyedUnarchiver& coder) {
    const PropertyArray* saved = coder.array(kConstantNames);
    if (!saved) {
        return;
    }
    std::vector<std::string> names;
    for (const PropertyList& name : *saved) {
        names.push_back(name.asText() ? *name.asText() : std::string());
    }
    setCheckedConstantNames(model.constants(), names);
}

void loadInequalities(Model& model, const KeyedUnarchiver& coder) {
    std::vector<InequalityTokens> inequalities;
    if (const PropertyArray* saved = coder.array(kInequalities)) {
        for (const PropertyList& inequality : *saved) {
            inequalities.push_back(InequalityTokens::decode(KeyedUnarchiver(inequality)));
        }
    }
    inequalities.resize(std::max(inequalities.size(), kLeastInequalities));
    model.inequalityArray() = std::move(inequalities);
}

/// Rows of files that hold no values get them now that all is read, and keep them from here on.
void completeHistory(ExpressionList& history) {
    for (int row = 0; row < history.nExpressions(); ++row) {
        ExpressionWithTokenArray* line = history.entryAtIndex(row);
        if (!line->keptResult()) {
            line->keepResult();
        }
    }
}

} // namespace

PropertyList archivedModel(Model& model) {
    KeyedArchiver coder;
    for (const ModelProperty& property : modelProperties()) {
        if (property.archiveKey) {
            coder.encode(property.archiveKey, property.get(model));
        }
    }
    for (const ListRow& row : kLists) {
        coder.encode(row.key, row.list(model).expressionTokenArrays());
    }
    coder.encode(kImpliedFunctionHeights, model.impliedFunctions().archivedHeights());
    const std::vector<std::string>& names = model.constants().nameArray();
    coder.encode(kConstantNames, PropertyArray(names.begin(), names.end()));
    PropertyArray inequalities;
    for (const InequalityTokens& inequality : model.inequalityArray()) {
        KeyedArchiver own;
        inequality.encodeWithCoder(own);
        inequalities.push_back(own.propertyList());
    }
    coder.encode(kInequalities, std::move(inequalities));
    const std::array bounds{model.xMinForGraph(), model.xMaxForGraph(), model.yMinForGraph(),
                            model.yMaxForGraph()};
    for (std::size_t i = 0; i < bounds.size(); ++i) {
        coder.encode(kBoundKeys[i], bounds[i]);
    }
    KeyedArchiver line;
    model.halfTypedLine().encodeWithCoder(line);
    coder.encode(kHalfTypedLine, line.propertyList());
    coder.encode(kDisplayMode, model.displayMode());
    coder.encode(kDisplayModeOnTablet, model.displayModeOnTablet());
    coder.encode(kSelectedTab, model.selectedTab());
    coder.encode(kActivations, model.nHasBecomeActive());
    coder.encode(kLetterIOnMainKeyboard, model.iOnMainKeyboard());
    return coder.propertyList();
}

void loadArchivedModel(Model& model, const PropertyList& archive) {
    const KeyedUnarchiver coder(archive);
    const ModelProperty* volume = modelProperty("soundVolume");
    volume->set(model, volume->byDefault); // intended: the same at every start
    loadSettings(model, coder);
    loadDisplayMode(model, coder);
    loadActivations(model, coder);
    model.setSelectedTab(coder.text(kSelectedTab).value_or(std::string()));
    const PropertyArray* pickerRows = coder.array(kPickerRows);
    model.setSelectedUnitConverterPickerRows(pickerRows ? *pickerRows : PropertyArray());
    const PropertyList pickerUnit(coder.integer(kPickerUnit).value_or(0));
    const ModelProperty* pickerProperty = modelProperty("pickerSelectedUnitIndex");
    pickerProperty->set(model, accepts(*pickerProperty, pickerUnit) ? pickerUnit : PropertyList(0));
    for (const ListRow& row : kLists) {
        if (const PropertyList* saved = coder.value(row.key)) {
            row.list(model).loadWithObject(*saved);
        }
    }
    loadConstantNames(model, coder);
    if (const PropertyList* heights = coder.value(kImpliedFunctionHeights)) {
        model.impliedFunctions().loadHeights(*heights);
    }
    loadGraphBounds(model, coder);
    loadInequalities(model, coder);
    const PropertyList* line = coder.value(kHalfTypedLine);
    model.setHalfTypedLine(line ? HalfTypedLine::decode(KeyedUnarchiver(*line)) : HalfTypedLine());
    // Intended, though the file holds it: the main keyboard starts out without the letter.
    model.setIOnMainKeyboard(false);
    completeHistory(model.history());
}

} // namespace velmora
