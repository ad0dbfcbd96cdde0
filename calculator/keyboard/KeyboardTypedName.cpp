// Names typed letter by letter on a hardware keyboard. The letters stand in the line at the cursor; as soon
// as they can only mean one thing they become its token ("asin(" at the parenthesis), and at the latest
// when something else is done.

#include "calculator/keyboard/KeyboardScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "engine/lines/ExpressionList.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr const char* kLastAnswer = "ans";
constexpr std::size_t kOfferedNames = 4;

std::string inQuotes(const std::string& text) { return "“" + text + "”"; }

} // namespace

std::vector<std::string> KeyboardViewController::definedVariables() const {
    switch (m_entering) {
    case kEnteringCalculatorLine:
        return {};
    case kEnteringInequality:
    case kEnteringImpliedFunction:
        return {"x", "y"};
    default:
        return m_target ? m_target->variableNameArray() : std::vector<std::string>{};
    }
}

TypeableNames KeyboardViewController::typeableNames() const {
    Model& model = Model::m();
    return TypeableNames({.variables = definedVariables(),
                          .hasLastAnswer = m_entering == kEnteringCalculatorLine,
                          .equations = &model.equations(),
                          .constants = &model.constants()});
}

void KeyboardViewController::typeLetter(const std::string& letter) {
    if (!extendTypedName(letter)) {
        showNotice("No function, constant or variable here begins with " + inQuotes(m_typedName + letter) +
                   ".");
    }
    updateDisplay();
}

bool KeyboardViewController::extendTypedName(const std::string& text) {
    if (!m_displayModel) {
        return true; // no line, so nothing to tell either
    }
    const TypeableNames names = typeableNames();
    const std::string typed = m_typedName + text;
    const auto complete = names.insertedTexts(typed);
    const bool canContinue = names.canContinue(typed);
    if (complete && !canContinue) {
        insertTypedNames(*complete);
    } else if (complete || canContinue) {
        m_typedName = typed;
    } else {
        return false;
    }
    return true;
}

void KeyboardViewController::insertTypedNames(const std::vector<std::string>& texts) {
    m_typedName.clear();
    for (const std::string& text : texts) {
        if (text == kLastAnswer) {
            insertANS();
        } else {
            insertElement(Token(text));
        }
    }
}

bool KeyboardViewController::continueTypedName(const std::string& text) {
    if (m_typedName.empty()) {
        return false;
    }
    constexpr std::string_view kMayStandInNames = "(0123456789";
    const bool mayContinue = text.size() == 1 && kMayStandInNames.find(text) != std::string_view::npos;
    if (mayContinue && extendTypedName(text)) {
        updateDisplay();
        return true;
    }
    return !finishTypedName();
}

bool KeyboardViewController::finishTypedName() {
    if (m_typedName.empty()) {
        return true;
    }
    const TypeableNames names = typeableNames();
    if (const auto texts = names.insertedTexts(m_typedName)) {
        insertTypedNames(*texts);
        updateDisplay();
        return true;
    }
    std::vector<std::string> offered = names.continuations(m_typedName);
    std::string list;
    for (std::size_t i = 0; i < std::min(offered.size(), kOfferedNames); ++i) {
        list += (i == 0 ? "" : ", ") + offered[i];
    }
    list += offered.size() > kOfferedNames ? ", …" : "";
    showNotice(inQuotes(m_typedName) + " is only the start of " + list);
    return false;
}

bool KeyboardViewController::isReadyForPress(const CalculatorButton& button) {
    constexpr std::array<std::string_view, 3> kActOnTypedName{"clr", "del", "("};
    const std::string title = button.titleString();
    const bool isDigit = title.size() == 1 && title[0] >= '0' && title[0] <= '9';
    return isDigit || std::ranges::find(kActOnTypedName, title) != kActOnTypedName.end() || finishTypedName();
}

void KeyboardViewController::showNotice(const std::string& text) const {
    if (m_screen) {
        m_screen->showNotice(text);
    }
}

} // namespace velmora
