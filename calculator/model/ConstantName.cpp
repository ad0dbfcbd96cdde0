#include "calculator/model/ConstantName.h"

#include "calculator/model/LineWords.h"
#include "engine/functions/BivarTable.h"
#include "engine/functions/UnivarTable.h"
#include "engine/lines/NamedExpressionList.h"
#include "engine/tree/TriFunction.h"
#include "platform/text/Log.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace velmora {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr char kDelete = 0x7f;
// Each would be read as something else in a line that shows the name.
constexpr std::array<std::string_view, 31> kForbiddenCharacters{
    "(", ")", "[", "]", "{", "}", ",", "=", "<", ">", "≤", "≥", "@",  "_",  "+", "-",
    "−", "*", "×", "·", "/", "÷", "^", "!", "√", "²", "³", " ", "\t", "\r", "\n"};

bool isFunctionName(const std::string& name) {
    const std::string token = name + "(";
    const bool userFunction = name.size() == 2 && name[0] == 'y' && name[1] >= '1' && name[1] <= '4';
    return userFunction || univarTypeWithToken(token) != UnivarType::NoFunction ||
           bivarTypeWithToken(token) != BivarType::NoOperator || TriFunction::acceptsToken(token);
}

bool isNameOfAnother(const NamedExpressionList& constants, const std::string& name, int slot) {
    for (int other = 0; other < constants.maxExpressions(); ++other) {
        const std::string plain = constants.internalRepresentationWithIndex(other).substr(1);
        if (other != slot && (name == plain || name == constants.fullFunctionNameWithIndex(other))) {
            return true;
        }
    }
    return false;
}

} // namespace

std::string reasonAgainstConstantName(const NamedExpressionList& constants, const std::string& name,
                                      int slot) {
    if (name.find_first_of(".0123456789") == 0) {
        return "A name begins with neither a digit nor a point.";
    }
    for (const std::string& character : splitCodePoints(name)) {
        if (character.size() == 1 && (character[0] < ' ' || character[0] == kDelete) &&
            kBlanks.find(character) == std::string_view::npos) {
            return "A name cannot hold a control character.";
        }
        if (std::ranges::find(kForbiddenCharacters, character) != kForbiddenCharacters.end()) {
            const bool isBlank = kBlanks.find(character) != std::string_view::npos;
            return "A name cannot hold " + (isBlank ? "a blank" : "“" + character + "”") + ".";
        }
    }
    if (isFunctionName(name)) {
        return "“" + name + "” is the name of a function.";
    }
    if (isLineWord(name)) {
        return "“" + name + "” already has a meaning of its own.";
    }
    if (isNameOfAnother(constants, name, slot)) {
        return "“" + name + "” is the name of another constant.";
    }
    return {};
}

void setCheckedConstantNames(NamedExpressionList& constants, const std::vector<std::string>& names) {
    constants.setNameArray({}); // a name is compared with those before it alone
    const int count = std::min(static_cast<int>(names.size()), constants.maxExpressions());
    for (int slot = 0; slot < count; ++slot) {
        const std::string& name = names[static_cast<std::size_t>(slot)];
        if (name.empty()) {
            continue;
        }
        if (const std::string reason = reasonAgainstConstantName(constants, name, slot); !reason.empty()) {
            log("a constant's name in the file cannot be used: " + reason);
        } else {
            constants.setNameAtIndex(slot, name);
        }
    }
}

} // namespace velmora
