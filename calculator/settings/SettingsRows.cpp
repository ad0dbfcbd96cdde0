#include "calculator/settings/SettingsRows.h"

#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/Model.h"
#include "toolkit/OrvChoiceSettingsCell.h"
#include "toolkit/OrvNumberSettingsCell.h"
#include "toolkit/OrvTextSettingsCell.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

enum class RowKind : unsigned char { ListPick, Integer, Switch, Double, Segmented, Action, SubTable };

struct SettingsRow {
    int section;
    RowKind kind;
    const char* title;
    const char* key;                  ///< of the property; of the screen that a sub-table row opens
    std::vector<std::string> items{}; ///< of a list pick or a segmented row: their indices are the values
    int minimum = 0;
    int maximum = 0;
    const char* target = "Model";
    const char* explanation = "";
};

constexpr std::array kSectionTitles{"Calculator",       "Keyboard",        "Graph",          "Polar Graph",
                                    "Parametric Graph", "Complex Numbers", "Unit Converter", "About"};
static_assert(kSectionTitles.size() == kSettingsSectionCount);

constexpr const char* kRoundingExplanation =
    "Roundoff errors in complex math occur frequently and can be annoying.  If this option is on, the real "
    "and complex parts of every result will be rounded to zero if their absolute value is less than 10^-12.";

const std::vector<SettingsRow>& rows() {
    using enum RowKind;
    static const std::vector<SettingsRow> table{
        {0, ListPick, "Angles", "angleMode", {"Radians", "Degrees"}},
        {.section = 0,
         .kind = Integer,
         .title = "Max digits for decimal notation",
         .key = "maxDigitsForDecimalNotation",
         .minimum = 1,
         .maximum = 10},
        {.section = 0,
         .kind = Integer,
         .title = "Display decimal places",
         .key = "displayDigits",
         .minimum = 2,
         .maximum = 12},
        {0, Switch, "Trailing zeroes", "trailingZeroes"},
        {0, Switch, "Commas in numbers", "commasInNumbers"},
        {0, Segmented, "Allowed orientations", "orientationMode", {"Portrait", "Landscape", "Both"}},
        {1, Switch, "Button click sound", "soundIsOn"},
        {1, ListPick, "Portrait Layout", "whichKeyboard", {"standard", "alternate"}},
        {1, ListPick, "Portrait Display", "displayMode", {"Small Keys", "Large Keys"}},
        {1, Segmented, "Fonts", "largeFontsOnPhone", {"Normal", "Large"}},
        {2, ListPick, "Type of Graph", "graphType", graphTypeChoices()},
        {2, Double, "Min X", "xMinForGraph"},
        {2, Double, "Max X", "xMaxForGraph"},
        {2, Double, "Min Y", "yMinForGraph"},
        {2, Double, "Max Y", "yMaxForGraph"},
        {2, Switch, "Same scale X&Y", "sameScaleXAndY"},
        {2, Switch, "Graph Labels", "putLabelsOnGraph"},
        {2, Switch, "Shake to Reset", "shakeToResetGraph"},
        {2, ListPick, "Grid Lines", "graphGridLineType", {"Close together", "Far apart"}},
        {2, Segmented, "Graph Background", "graphBackgroundIsBlack", {"White", "Black"}},
        {3, Double, "Starting θ", "thetaStartForPolarGraph"},
        {3, Double, "Ending θ", "thetaEndForPolarGraph"},
        {4, Double, "Starting t", "tStartForParametricGraph"},
        {4, Double, "Ending t", "tEndForParametricGraph"},
        {.section = 5,
         .kind = Switch,
         .title = "Round small parts",
         .key = "roundSmallPartsOfComplexNumbers",
         .explanation = kRoundingExplanation},
        {5, Switch, "i on main keyboard", "iOnMainKeyboard"},
        {5, Action, "Implementation Notes", ""},
        {.section = 6,
         .kind = Segmented,
         .title = "Units",
         .key = "moreUnits",
         .items = {"Default", "More"},
         .target = "UnitConverterModel"},
        {7, SubTable, "About", "AboutPage"},
    };
    return table;
}

/// While one scale holds for both axes, the upper bound follows from the others.
bool isReplacedBySameScale(const SettingsRow& row) {
    return std::string_view(row.key) == "yMaxForGraph" && Model::m().sameScaleXAndY();
}

std::shared_ptr<OrvSettingsCell> newCell(const SettingsRow& row) {
    if (isReplacedBySameScale(row)) {
        return std::make_shared<OrvPlainTextSettingsCell>("Max Y is set for same scale");
    }
    OrvBoundSettingsCell::Binding binding{row.target, row.key};
    switch (row.kind) {
    case RowKind::ListPick:
        return std::make_shared<OrvListPickSettingsCell>(row.title, std::move(binding), row.items);
    case RowKind::Integer:
        return std::make_shared<OrvIntegerSettingsCell>(row.title, std::move(binding), row.minimum,
                                                        row.maximum);
    case RowKind::Switch:
        return std::make_shared<OrvSwitchSettingsCell>(row.title, std::move(binding));
    case RowKind::Double:
        return std::make_shared<OrvDoubleSettingsCell>(row.title, std::move(binding));
    case RowKind::Segmented:
        return std::make_shared<OrvSegmentedControlSettingsCell>(row.title, std::move(binding), row.items);
    case RowKind::SubTable:
        return std::make_shared<OrvSubTableSettingsCell>(row.title, row.key);
    case RowKind::Action:
        break; // made by the table, which knows what it does
    }
    return std::make_shared<OrvPlainTextSettingsCell>(row.title);
}

/// The first row of a section and those behind it.
const SettingsRow* find(int section, int number) {
    for (const SettingsRow& row : rows()) {
        if (row.section == section && number-- == 0) {
            return &row;
        }
    }
    return nullptr;
}

} // namespace

int settingsSectionOfKey(std::string_view key) {
    const auto row = std::ranges::find(rows(), key, &SettingsRow::key);
    return row == rows().end() ? kSettingsSectionCount : row->section;
}

int settingsRowCount(int section) {
    int count = 0;
    while (find(section, count)) {
        ++count;
    }
    return count;
}

std::string settingsSectionTitle(int section) {
    return section >= 0 && section < kSettingsSectionCount ? kSectionTitles[static_cast<std::size_t>(section)]
                                                           : "Missing Title";
}

std::shared_ptr<OrvSettingsCell> settingsCell(int section, int row) {
    const SettingsRow* found = row >= 0 ? find(section, row) : nullptr;
    if (!found) {
        return std::make_shared<OrvPlainTextSettingsCell>("Undefined Cell");
    }
    auto cell = newCell(*found);
    cell->setExplanation(found->explanation);
    return cell;
}

} // namespace velmora
