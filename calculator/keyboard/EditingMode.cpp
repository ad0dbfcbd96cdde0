#include "calculator/keyboard/EditingMode.h"

#include "engine/lines/ExpressionList.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr std::string_view kNarrow = "←→DCS^+-*/F789eN456πT123U0.(=";
constexpr std::string_view kOtherNarrow = "←→eS/DCπ^*F789-N456+T123U0.(=";

constexpr std::string_view kPairing = "/a*a-a+a^a.b0b1b2b3b4b5b6b7b8b9b=cebFfNfTfUfDgCg←g→g(bπbSsijxjyjtjθj";
constexpr std::string_view kPairingForInequalities =
    "/a*a-a+a^a.b0b1b2b3b4b5b6b7b8b9b=cebFfNfTfUfDgCg←g→g(bπhxhyh!hSs≥j>j≤j<jij";
constexpr std::string_view kPairingForImpliedFunctions =
    "/a*a-a+a^a.b0b1b2b3b4b5b6b7b8b9b=cebFfNfTfUfDgCg←g→g(bπhxjyj!hSs≥j>j≤j<jij";

constexpr std::array kModes{
    EditingMode{.entering = kEnteringCalculatorLine,
                .tallKey = TallKeyAction::AppendsToHistory,
                .hasSmallEntryLine = true,
                .wideLayout = "←→+-DC*/FN^STUi 789e456π1230.(=",
                .narrowLayout = kNarrow,
                .otherNarrowLayout = kOtherNarrow,
                .pairing = kPairing},
    EditingMode{.entering = kEnteringFunction,
                .namesSlot = true,
                .listNamesVariables = true,
                .variableSharesKeyOfPi = true,
                .functionsMayUseVariable = true,
                .wideLayout = "←→+-DC*/FN^STUix789e456π1230.(=",
                .narrowLayout = kNarrow,
                .otherNarrowLayout = kOtherNarrow,
                .pairing = kPairing},
    EditingMode{.entering = kEnteringParametric,
                .namesSlot = true,
                .keyVariable = "t",
                .listNamesVariables = true,
                .variableSharesKeyOfPi = true,
                .wideLayout = "←→+-DC*/FN^STUit789e456π1230.(=",
                .narrowLayout = kNarrow,
                .otherNarrowLayout = kOtherNarrow,
                .pairing = kPairing},
    EditingMode{.entering = kEnteringPolar,
                .namesSlot = true,
                .listNamesVariables = true,
                .wideLayout = "←→+-DC*/FN^STUi 789e456π1230.(=",
                .narrowLayout = kNarrow,
                .otherNarrowLayout = kOtherNarrow,
                .pairing = kPairing},
    EditingMode{.entering = kEnteringInequality,
                .tallKey = TallKeyAction::StoresInequality,
                .hasSmallEntryLine = true,
                .variables = "xy",
                .variableSharesKeyOfPi = true,
                .wideLayout = "≥←→+->DC*/≤FN^S<TUxy789e456π1230.(=",
                .narrowLayout = "←→DCS^+-*/F789eN456πT123yU0.(≥>≤<=",
                .otherNarrowLayout = "←→eS/DCπ^*F789-N456+T123yU0.(≥>≤<=",
                .pairing = kPairingForInequalities,
                .wideLeftColumns = 5,
                .narrowRows = 7},
    // The blanks before "xy" stand where the tall key of three rows lies; see ButtonGrid.
    EditingMode{.entering = kEnteringImpliedFunction,
                .showsHeights = true,
                .variables = "xy",
                .wideLayout = "←→+-DC*/FN^STUxy789e456π1230.(=",
                .narrowLayout = "←→DCS^+-*/F789eN456πT123U0.(  xy=",
                .otherNarrowLayout = "←→eS/DCπ^*F789-N456+T123U0.(  xy=",
                .pairing = kPairingForImpliedFunctions,
                .narrowRows = 7,
                .narrowRowsOfTallKey = 3},
};
static_assert(std::ranges::all_of(kModes,
                                  [](const EditingMode& mode) {
                                      return &mode - kModes.data() == mode.entering;
                                  }),
              "rows stand in the order of their numbers");

constexpr EditingMode kNoMode{.entering = -1, .pairing = kPairing};

} // namespace

const EditingMode& editingMode(int entering) {
    return entering < 0 || entering >= static_cast<int>(kModes.size())
               ? kNoMode
               : kModes[static_cast<std::size_t>(entering)];
}

std::string keyVariable(const EditingMode& mode, const ExpressionList* target) {
    const bool isGivenByList = target && mode.variables.empty();
    return isGivenByList ? target->variableNameString() : std::string(mode.keyVariable);
}

std::vector<std::string> variablesOfLine(const EditingMode& mode, const ExpressionList* target) {
    if (mode.listNamesVariables) {
        return target ? target->variableNameArray() : std::vector<std::string>{};
    }
    std::vector<std::string> variables;
    for (const char variable : mode.variables) {
        variables.emplace_back(1, variable);
    }
    return variables;
}

} // namespace velmora
