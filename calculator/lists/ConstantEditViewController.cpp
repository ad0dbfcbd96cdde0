#include "calculator/lists/ConstantEditViewController.h"

#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "engine/functions/BivarTable.h"
#include "engine/functions/UnivarTable.h"
#include "platform/machine/Alert.h"
#include "platform/screens/NavigationController.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

// What means something by itself in a line.
constexpr std::array<std::string_view, 11> kOtherNames{"x", "y", "t", "θ",   "e",          "E",
                                                       "i", "N", "π", "ans", "conditional"};

constexpr std::string_view kBlanks = " \t\r\n";
// Each would be read as something else in a line that shows the name.
constexpr std::array<std::string_view, 28> kForbiddenCharacters{
    "(", ")", "[", "]", "{", "}", ",", "=", "<", ">", "≤", "≥",  "@",  "_",
    "+", "-", "−", "*", "×", "·", "/", "÷", "^", "!", " ", "\t", "\r", "\n"};

NamedExpressionList& constants() { return Model::m().constants(); }

bool isFunctionName(const std::string& name) {
    const std::string token = name + "(";
    const bool userFunction = name.size() == 2 && name[0] == 'y' && name[1] >= '1' && name[1] <= '4';
    return userFunction || univarTypeWithToken(token) != UnivarType::NoFunction ||
           bivarTypeWithToken(token) != BivarType::NoOperator;
}

bool isNameOfAnother(const std::string& name, int slot) {
    for (int other = 0; other < constants().maxExpressions(); ++other) {
        const std::string plain = constants().internalRepresentationWithIndex(other).substr(1);
        if (other != slot && (name == plain || name == constants().fullFunctionNameWithIndex(other))) {
            return true;
        }
    }
    return false;
}

bool isPiInAnyCase(const std::string& name) {
    return name.size() == 2 && (name[0] == 'p' || name[0] == 'P') && (name[1] == 'i' || name[1] == 'I');
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(kBlanks);
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

} // namespace

std::string reasonAgainstConstantName(const std::string& name, int slot) {
    if (name.find_first_of(".0123456789") == 0) {
        return "A name begins with neither a digit nor a point.";
    }
    for (const std::string& character : splitCodePoints(name)) {
        if (std::ranges::find(kForbiddenCharacters, character) != kForbiddenCharacters.end()) {
            const bool isBlank = kBlanks.find(character) != std::string_view::npos;
            return "A name cannot hold " + (isBlank ? "a blank" : "“" + character + "”") + ".";
        }
    }
    if (isFunctionName(name)) {
        return "“" + name + "” is the name of a function.";
    }
    if (std::ranges::find(kOtherNames, name) != kOtherNames.end() || isPiInAnyCase(name)) {
        return "“" + name + "” already has a meaning of its own.";
    }
    if (isNameOfAnother(name, slot)) {
        return "“" + name + "” is the name of another constant.";
    }
    return {};
}

ConstantEditViewController::ConstantEditViewController(int slot) : m_slot(slot) {
    setTitle(name().empty() ? plainName() : name());
}

std::string ConstantEditViewController::plainName() const {
    return constants().internalRepresentationWithIndex(m_slot).substr(1);
}

std::string ConstantEditViewController::name() const {
    const std::string& full = constants().fullFunctionNameWithIndex(m_slot);
    return full == plainName() ? std::string() : full;
}

bool ConstantEditViewController::setName(const std::string& text) {
    const std::string newName = trimmed(text);
    // A name that came with a file stays, whatever it holds.
    const bool isNew = !newName.empty() && newName != name();
    const std::string reason = isNew ? reasonAgainstConstantName(newName, m_slot) : std::string();
    if (!reason.empty()) {
        presentAlert({.title = "This name cannot be used", .message = reason});
        m_contentsChanged.emit(); // the former name shows again
        return false;
    }
    constants().setNameAtIndex(m_slot, newName == plainName() ? std::string() : newName);
    setTitle(newName.empty() ? plainName() : newName);
    m_contentsChanged.emit();
    return true;
}

std::string ConstantEditViewController::valueText() const { return constants().expressionString(m_slot); }

void ConstantEditViewController::editValue() {
    NavigationController* stack = navigationController();
    if (!stack) {
        return;
    }
    setBackButtonTitle("Cancel");
    auto editor = std::make_shared<KeyboardViewController>(kEnteringFunction);
    editor->setTitle("Constant");
    editor->setEnteringWhichEquation(m_slot);
    editor->setDisplayModel(
        std::make_unique<ExpressionWithTokenArray>(*constants().expressionTokenArray(m_slot)));
    editor->setTarget(&constants());
    stack->push(std::move(editor));
}

bool ConstantEditViewController::isDefined() const {
    return constants().nonemptyExpressionAtIndex(m_slot) || !name().empty();
}

void ConstantEditViewController::deleteConstant() {
    presentAlert({.title = "Delete " + (name().empty() ? plainName() : name()) + "?",
                  .message = "Lines that use it are undefined until it has a value again.",
                  .buttons = {"Cancel", "Delete"},
                  .onChosen = [this](int button) {
                      if (button == 1) {
                          constants().setExpressionAtIndex(m_slot, ExpressionWithTokenArray(), false);
                          setName({});
                      }
                  }});
}

void ConstantEditViewController::viewWillAppear(bool animated) {
    static_cast<void>(animated);
    setBackButtonTitle({});
    m_contentsChanged.emit(); // the value may have been edited
}

bool ConstantEditViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
