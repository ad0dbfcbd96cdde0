#include "calculator/keyboard/KeyboardLayoutStrings.h"

#include "calculator/keyboard/EditingMode.h"
#include "calculator/model/Assertion.h"
#include "calculator/model/KeyboardGeometry.h"
#include "platform/text/Utf8.h"

namespace velmora {

std::string_view keyboardLayoutString(int geometry, const EditingMode& mode, int whichKeyboard) {
    if (keyboardGeometryIsWide(geometry)) {
        return mode.wideLayout;
    }
    if (keyboardGeometryIsNarrow(geometry)) {
        return whichKeyboard == 0 ? mode.narrowLayout : mode.otherNarrowLayout;
    }
    return {};
}

std::string adjustedLayoutString(std::string_view layout, const LayoutAdjustment& adjustment) {
    const bool namesVariable =
        adjustment.mode.entering == kEnteringFunction && keyboardGeometryIsWide(adjustment.geometry);
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

std::string colourClass(std::string_view character, const EditingMode& mode) {
    const std::string_view table = mode.pairing;
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
