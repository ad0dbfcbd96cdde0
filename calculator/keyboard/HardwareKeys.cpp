#include "calculator/keyboard/HardwareKeys.h"

#include "platform/text/Utf8.h"

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
    HardwareRow{"Up", HardwareAction::Earlier, ""},
    HardwareRow{"Down", HardwareAction::Later, ""},
    HardwareRow{" ", HardwareAction::Blank, " "},
    // What other keyboards produce for the operators.
    HardwareRow{"×", HardwareAction::Type, "*"},
    HardwareRow{"·", HardwareAction::Type, "*"},
    HardwareRow{"⋅", HardwareAction::Type, "*"},
    HardwareRow{"÷", HardwareAction::Type, "/"},
    HardwareRow{"−", HardwareAction::Type, "-"},
    HardwareRow{"√", HardwareAction::Type, "sqrt("},
    HardwareRow{"²", HardwareAction::Power, "2"},
    HardwareRow{"³", HardwareAction::Power, "3"},
    HardwareRow{"!", HardwareAction::Factorial, "!"},
    HardwareRow{"π", HardwareAction::Type, "π"},
    HardwareRow{"≥", HardwareAction::Type, "≥"},
    HardwareRow{"≤", HardwareAction::Type, "≤"},
};
constexpr std::string_view kTypedAsTheyAre = "0123456789.+-*/^(),<>";

/// Letters, and whatever else is no control character: it may stand in a name that the user gave.
bool mayStandInAName(std::string_view text) {
    constexpr unsigned char kDelete = 0x7f;
    if (text.empty() || text != firstCodePoint(text)) {
        return false;
    }
    const auto first = static_cast<unsigned char>(text.front()); // char has a sign on some machines only
    return first > ' ' && first != kDelete;
}

} // namespace

HardwareKey hardwareKeyWithText(std::string_view text) {
    const auto* found = std::ranges::find(kRows, text, &HardwareRow::key);
    if (found != kRows.end()) {
        return {found->action, std::string(found->text)};
    }
    if (text.size() == 1 && kTypedAsTheyAre.find(text) != std::string_view::npos) {
        return {HardwareAction::Type, std::string(text)};
    }
    return mayStandInAName(text) ? HardwareKey{HardwareAction::Letter, std::string(text)} : HardwareKey{};
}

} // namespace velmora
