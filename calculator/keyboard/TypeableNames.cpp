#include "calculator/keyboard/TypeableNames.h"

#include "engine/functions/BivarTable.h"
#include "engine/functions/UnivarTable.h"
#include "engine/lines/NamedExpressionList.h"
#include "engine/tree/TriFunction.h"

#include <algorithm>

namespace velmora {

namespace {

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool matches(std::string_view typed, std::string_view name) {
    return name.size() == 1 ? typed == name : std::ranges::equal(typed, name, {}, lowerCase, lowerCase);
}

} // namespace

TypeableNames::TypeableNames(const Context& context) {
    for (const std::string& variable : context.variables) {
        add(variable, variable);
    }
    addFunctions(!context.variables.empty());
    for (int i = 0; context.equations && i < context.equations->nExpressions(); ++i) {
        const std::string call = context.equations->internalRepresentationWithIndex(i) + "(";
        add(call, call);
    }
    for (int i = 0; context.constants && i < context.constants->nExpressions(); ++i) {
        if (context.constants->nonemptyExpressionAtIndex(i)) {
            const std::string number = std::to_string(i + 1);
            add(context.constants->fullFunctionNameWithIndex(i), "@k" + number);
        }
    }
    if (context.hasLastAnswer) {
        add("ans", "ans");
    }
    add("pi", "π");
    // What may stand behind a letter that could have begun a longer name: "e2", "x(".
    for (const char* single : {"e", "E", "i", "(", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        add(single, single);
    }
    std::ranges::stable_sort(m_names, std::ranges::greater(),
                             [](const Name& name) { return name.typed.size(); });
}

void TypeableNames::add(std::string_view typed, std::string_view inserted) {
    if (!typed.empty()) {
        m_names.push_back({std::string(typed), std::string(inserted)});
    }
}

void TypeableNames::addFunctions(bool hasVariable) {
    const auto addCall = [this](std::string_view token) {
        if (token.ends_with('(')) {
            add(token, token);
        }
    };
    for (int type = 0; type <= static_cast<int>(UnivarType::ErrorFunction); ++type) {
        const UnivarRow& row = univarRow(static_cast<UnivarType>(type));
        addCall(row.token);
        addCall(row.otherToken);
    }
    for (int type = 0; type <= static_cast<int>(BivarType::NoOperator); ++type) {
        addCall(bivarRow(static_cast<BivarType>(type)).token);
    }
    if (hasVariable) {
        addCall(TriFunction::kToken);
    }
}

const TypeableNames::Name* TypeableNames::longestNameAt(std::string_view typed,
                                                        const std::vector<bool>& isDivisible,
                                                        std::size_t start) const {
    const Name* found = nullptr;
    for (const Name& name : m_names) {
        const std::string_view part = typed.substr(start, name.typed.size());
        if (found && name.typed.size() < found->typed.size()) {
            break;
        }
        // The spelling as it stands goes before another case of it: "Im(" before "im(".
        if (matches(part, name.typed) && isDivisible[start + part.size()] && (!found || part == name.typed)) {
            found = &name;
        }
    }
    return found;
}

std::optional<std::vector<std::string>> TypeableNames::insertedTexts(std::string_view typed) const {
    // From the end, so that every place is looked at once however many ways there are to divide the text.
    std::vector<const Name*> nameAt(typed.size(), nullptr);
    std::vector<bool> isDivisible(typed.size() + 1, false);
    isDivisible[typed.size()] = true;
    for (std::size_t start = typed.size(); start-- > 0;) {
        nameAt[start] = longestNameAt(typed, isDivisible, start);
        isDivisible[start] = nameAt[start] != nullptr;
    }
    if (!isDivisible[0]) {
        return std::nullopt;
    }
    std::vector<std::string> texts;
    for (std::size_t start = 0; start < typed.size(); start += nameAt[start]->typed.size()) {
        texts.push_back(nameAt[start]->inserted);
    }
    return texts;
}

std::vector<std::string> TypeableNames::continuations(std::string_view typed) const {
    std::vector<std::string> found;
    for (std::size_t start = 0; start < typed.size(); ++start) {
        if (start > 0 && !insertedTexts(typed.substr(0, start))) {
            continue;
        }
        const std::string_view part = typed.substr(start);
        for (const Name& name : m_names) {
            if (name.typed.size() > part.size() &&
                std::ranges::equal(part, std::string_view(name.typed).substr(0, part.size()), {}, lowerCase,
                                   lowerCase)) {
                found.push_back(name.typed);
            }
        }
    }
    std::ranges::stable_sort(found, {}, &std::string::size);
    return found;
}

} // namespace velmora
