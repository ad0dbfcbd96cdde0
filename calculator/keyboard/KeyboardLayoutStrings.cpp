#include "calculator/keyboard/KeyboardLayoutStrings.h"

#include "calculator/model/Assertion.h"
#include "calculator/model/Entering.h"
#include "calculator/model/KeyboardGeometry.h"
#include "platform/text/Utf8.h"

#include <array>

namespace velmora {

namespace {

constexpr int kModes = kEnteringImpliedFunction + 1;

constexpr std::array<std::string_view, kModes> kWideLayouts{
    "←→+-DC*/FN^STUi 789e456π1230.(=",     "←→+-DC*/FN^STUix789e456π1230.(=",
    "←→+-DC*/FN^STUit789e456π1230.(=",     "←→+-DC*/FN^STUi 789e456π1230.(=",
    "≥←→+->DC*/≤FN^S<TUxy789e456π1230.(=", "←→+-DC*/FN^STUxy789e456π1230.(=",
};

struct NarrowRow {
    std::string_view standard;
    std::string_view alternate; ///< for a `whichKeyboard` other than 0
};
constexpr NarrowRow kNarrowPlain{"←→DCS^+-*/F789eN456πT123U0.(=", "←→eS/DCπ^*F789-N456+T123U0.(="};
constexpr std::array<NarrowRow, kModes> kNarrowLayouts{
    kNarrowPlain,
    kNarrowPlain,
    kNarrowPlain,
    kNarrowPlain,
    NarrowRow{"←→DCS^+-*/F789eN456πT123yU0.(≥>≤<=", "←→eS/DCπ^*F789-N456+T123yU0.(≥>≤<="},
    // The blanks before "xy" stand where the tall key of three rows lies; see ButtonGrid.
    NarrowRow{"←→DCS^+-*/F789eN456πT123U0.(  xy=", "←→eS/DCπ^*F789-N456+T123U0.(  xy="},
};

// Each key's character, then the letter of its class.
constexpr std::string_view kPairing = "/a*a-a+a^a.b0b1b2b3b4b5b6b7b8b9b=cebFfNfTfUfDgCg←g→g(bπbSsijxjyjtjθj";
constexpr std::string_view kPairingForInequalities =
    "/a*a-a+a^a.b0b1b2b3b4b5b6b7b8b9b=cebFfNfTfUfDgCg←g→g(bπhxhyh!hSs≥j>j≤j<jij";
constexpr std::string_view kPairingForImpliedFunctions =
    "/a*a-a+a^a.b0b1b2b3b4b5b6b7b8b9b=cebFfNfTfUfDgCg←g→g(bπhxjyj!hSs≥j>j≤j<jij";

std::string_view pairing(int entering) {
    switch (entering) {
    case kEnteringInequality:
        return kPairingForInequalities;
    case kEnteringImpliedFunction:
        return kPairingForImpliedFunctions;
    default:
        return kPairing;
    }
}

} // namespace

std::string_view keyboardLayoutString(int geometry, int entering, int whichKeyboard) {
    if (entering < 0 || entering >= kModes) {
        return {};
    }
    const auto mode = static_cast<std::size_t>(entering);
    if (keyboardGeometryIsWide(geometry)) {
        return kWideLayouts[mode];
    }
    if (keyboardGeometryIsNarrow(geometry)) {
        return whichKeyboard == 0 ? kNarrowLayouts[mode].standard : kNarrowLayouts[mode].alternate;
    }
    return {};
}

std::string adjustedLayoutString(std::string_view layout, const LayoutAdjustment& adjustment) {
    const bool namesVariable =
        adjustment.entering == kEnteringFunction && keyboardGeometryIsWide(adjustment.geometry);
    // One character a key: a name of another length would shift every key after it.
    const std::string variable =
        codePointCount(adjustment.variableName) == 1 ? adjustment.variableName : std::string(" ");
    std::string adjusted;
    for (const std::string& character : splitCodePoints(layout)) {
        if (character == "x" && namesVariable) {
            adjusted += variable;
        } else if (character == "i" && !adjustment.iOnMainKeyboard) {
            adjusted += " ";
        } else {
            adjusted += character;
        }
    }
    // The remaining "i" go as well, whatever the setting: it only changes the key of the point. Intended.
    for (char& character : adjusted) {
        if (character == 'i') {
            character = ' ';
        }
    }
    return adjusted;
}

std::string colourClass(std::string_view character, int entering) {
    const std::string_view table = pairing(entering);
    const std::size_t found = character.empty() ? std::string_view::npos : table.find(character);
    const std::string_view rest =
        found == std::string_view::npos ? std::string_view() : table.substr(found + character.size());
    if (rest.empty()) {
        assertionFailure("no colour class for the key \"" + std::string(character) + "\"");
        return "a";
    }
    return std::string(firstCodePoint(rest));
}

} // namespace velmora
