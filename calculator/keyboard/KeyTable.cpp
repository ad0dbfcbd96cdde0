#include "calculator/keyboard/KeyTable.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/LineWords.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

using Controller = KeyboardViewController;

/// An action that does not ask which key it was.
template <void (Controller::*action)()> void run(Controller& controller, CalculatorButton& /*button*/) {
    (controller.*action)();
}
template <void (Controller::*action)(CalculatorButton&)>
void run(Controller& controller, CalculatorButton& button) {
    (controller.*action)(button);
}

const std::array kRows{
    KeyRow{"C", "clr", run<&Controller::clearButtonPressed>, "clear"},
    KeyRow{"D", "del", run<&Controller::deleteAtCursor>, "delete", true},
    KeyRow{"F", "func", run<&Controller::functionButtonPressed>, "functions"},
    KeyRow{"N", "cnst", run<&Controller::constantButtonPressed>, "constants"},
    KeyRow{"S", "", run<&Controller::sqrtButtonPressed>, "square root"}, // its image shows the sign
    KeyRow{"T", "trig", run<&Controller::trigButtonPressed>, "trigonometric functions"},
    KeyRow{"U", "units", run<&Controller::unitsButtonPressed>, "unit converter"},
    KeyRow{"e", "e E", nullptr, ""},
    KeyRow{"←", "←", run<&Controller::leftButtonPressed>, "cursor left", true},
    KeyRow{"→", "→", run<&Controller::rightButtonPressed>, "cursor right", true},
    KeyRow{"<", "<", run<&Controller::inequalityButtonPressed>, ""},
    KeyRow{">", ">", run<&Controller::inequalityButtonPressed>, ""},
    KeyRow{"≥", "≥", run<&Controller::inequalityButtonPressed>, ""},
    KeyRow{"≤", "≤", run<&Controller::inequalityButtonPressed>, ""},
    KeyRow{"=", "=", run<&Controller::parenEqualsButtonPressed>, ""},
};

std::string spokenName(std::string_view text) {
    const LineWord* word = lineWord(text);
    return std::string(word && !word->spokenName.empty() ? word->spokenName : text);
}

} // namespace

KeyRow keyRow(std::string_view character) {
    const auto* found = std::ranges::find(kRows, character, &KeyRow::character);
    return found == kRows.end() ? KeyRow{character, character, nullptr, ""} : *found;
}

std::string accessibleName(std::string_view text) {
    const std::size_t blank = text.find(' ');
    if (blank == std::string_view::npos) {
        return spokenName(text);
    }
    return spokenName(text.substr(0, blank)) + " or " + accessibleName(text.substr(blank + 1));
}

} // namespace velmora
