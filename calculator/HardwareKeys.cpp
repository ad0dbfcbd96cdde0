#include "calculator/HardwareKeys.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

struct HardwareRow {
    std::string_view key;
    HardwareAction action;
    std::string_view text;
};
constexpr std::array kRows{
    HardwareRow{"Enter", HardwareAction::TallKey, ""},
    HardwareRow{"Return", HardwareAction::TallKey, ""},
    HardwareRow{"=", HardwareAction::TallKey, ""},
    HardwareRow{"Backspace", HardwareAction::Delete, ""},
    HardwareRow{"Delete", HardwareAction::DeleteForward, ""},
    HardwareRow{"Escape", HardwareAction::Clear, ""},
    HardwareRow{"Left", HardwareAction::Left, ""},
    HardwareRow{"Right", HardwareAction::Right, ""},
    HardwareRow{"Home", HardwareAction::Home, ""},
    HardwareRow{"End", HardwareAction::End, ""},
    // What other keyboards produce for the operators.
    HardwareRow{"×", HardwareAction::Type, "*"},
    HardwareRow{"·", HardwareAction::Type, "*"},
    HardwareRow{"÷", HardwareAction::Type, "/"},
    HardwareRow{"−", HardwareAction::Type, "-"},
    HardwareRow{"p", HardwareAction::Type, "π"},
    HardwareRow{"π", HardwareAction::Type, "π"},
    HardwareRow{"θ", HardwareAction::Type, "θ"},
    HardwareRow{"≥", HardwareAction::Type, "≥"},
    HardwareRow{"≤", HardwareAction::Type, "≤"},
};
constexpr std::string_view kTypedAsTheyAre = "0123456789.+-*/^(),<>eEixyt";

} // namespace

HardwareKey hardwareKeyWithText(std::string_view text) {
    const auto* found = std::ranges::find(kRows, text, &HardwareRow::key);
    if (found != kRows.end()) {
        return {found->action, std::string(found->text)};
    }
    if (text.size() == 1 && kTypedAsTheyAre.find(text) != std::string_view::npos) {
        return {HardwareAction::Type, std::string(text)};
    }
    return {};
}

} // namespace velmora
