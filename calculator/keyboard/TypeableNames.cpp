#include "calculator/keyboard/TypeableNames.h"

#include "calculator/model/LineWords.h"
#include "engine/functions/BivarTable.h"
#include "engine/functions/UnivarTable.h"
#include "engine/lines/NamedExpressionList.h"
#include "engine/tree/TriFunction.h"
#include "platform/text/Utf8.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::size_t kOfferedNames = 4;
constexpr std::size_t kLongestQuotation = 24;

std::string inQuotes(std::string_view text) {
    const std::string_view start = takeFirst(text, kLongestQuotation);
    return "“" + std::string(start) + (start.size() < text.size() ? "…" : "") + "”";
}

/// How many characters of a name the text begins with; a name of one character counts in its case alone.
std::size_t lengthOfCommonStart(std::string_view typed, std::string_view name) {
    if (name.size() == 1) {
        return typed.starts_with(name) ? 1 : 0;
    }
    std::size_t length = 0;
    while (length < std::min(typed.size(), name.size()) &&
           isSameInAnyCase(typed.substr(length, 1), name.substr(length, 1))) {
        ++length;
    }
    return length;
}

bool isLetter(std::string_view character) {
    const char first = character.empty() ? ' ' : character.front();
    const bool isLatin = (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z');
    return isLatin || character.size() > 1;
}

std::string listed(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += (list.empty() ? "" : " and ") + inQuotes(text);
    }
    return list;
}

} // namespace

TypeableNames::TypeableNames(const Context& context) : m_variables(context.variables) {
    addWords(context);
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
    // What may stand behind a letter that could have begun a longer name: "e2", "x(".
    for (const char* single : {"(", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
        add(single, single);
    }
    std::ranges::stable_sort(m_names, std::ranges::greater(),
                             [](const Name& name) { return name.typed.size(); });
}

void TypeableNames::add(std::string_view typed, std::string_view inserted, bool isMissingVariable) {
    if (!typed.empty()) {
        m_names.push_back({std::string(typed), std::string(inserted), isMissingVariable});
    }
}

void TypeableNames::addWords(const Context& context) {
    for (const LineWord& word : lineWords()) {
        const bool isVariable = word.kind == LineWord::Kind::Variable;
        const bool isMissing = isVariable && std::ranges::count(context.variables, word.token) == 0;
        if (isVariable || word.kind == LineWord::Kind::Value ||
            (word.kind == LineWord::Kind::LastAnswer && context.hasLastAnswer)) {
            add(word.token, word.token, isMissing);
            add(word.spelling, word.token, isMissing);
        }
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
        if (!name.isMissingVariable && spells(part, name.typed) && isDivisible[start + part.size()] &&
            (!found || part == name.typed)) {
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

std::vector<bool> TypeableNames::readableStarts(std::string_view typed) const {
    std::vector<bool> isReadable(typed.size() + 1, false);
    isReadable[0] = true;
    for (std::size_t start = 0; start < typed.size(); ++start) {
        for (const Name& name : m_names) {
            const std::string_view part = typed.substr(start, name.typed.size());
            if (isReadable[start] && !name.isMissingVariable && spells(part, name.typed)) {
                isReadable[start + part.size()] = true;
            }
        }
    }
    return isReadable;
}

std::vector<const TypeableNames::Name*> TypeableNames::continuations(std::string_view typed) const {
    const std::vector<bool> isReadable = readableStarts(typed);
    const std::size_t longest = m_names.front().typed.size();
    std::vector<const Name*> found;
    // A name that goes on behind the text began at most its own length before the end.
    for (std::size_t start = typed.size() - std::min(typed.size(), longest); start < typed.size(); ++start) {
        const std::string_view part = typed.substr(start);
        for (const Name& name : m_names) {
            if (isReadable[start] && name.typed.size() > part.size() &&
                lengthOfCommonStart(part, name.typed) == part.size()) {
                found.push_back(&name);
            }
        }
    }
    std::ranges::stable_sort(found, {}, [](const Name* name) { return name->typed.size(); });
    return found;
}

bool TypeableNames::canContinue(std::string_view typed) const { return !continuations(typed).empty(); }

std::string_view TypeableNames::withoutReadableStart(std::string_view typed) const {
    const std::vector<bool> isReadable = readableStarts(typed);
    std::size_t start = typed.size() - 1;
    while (!isReadable[start]) {
        --start; // the empty start is readable
    }
    return typed.substr(start);
}

const TypeableNames::Name* TypeableNames::missingVariableAtStart(std::string_view typed) const {
    const Name* missing = nullptr;
    std::size_t longest = 0; // what any other name has in common with the text
    for (const Name& name : m_names) {
        const std::size_t common = lengthOfCommonStart(typed, name.typed);
        if (!name.isMissingVariable) {
            longest = std::max(longest, common);
        } else if (common == name.typed.size() && (!missing || common > missing->typed.size())) {
            missing = &name;
        }
    }
    return missing && missing->typed.size() >= longest ? missing : nullptr;
}

std::string TypeableNames::reasonAgainst(std::string_view typed) const {
    if (typed.empty()) {
        return {};
    }
    const std::string_view rest = withoutReadableStart(typed);
    std::vector<std::string> offered;
    for (const Name* name : continuations(rest)) {
        if (!name->isMissingVariable) {
            offered.push_back(name->typed);
        }
    }
    if (const Name* missing = missingVariableAtStart(rest); missing && rest == missing->typed) {
        offered.clear();
    }
    if (!offered.empty()) {
        std::string list;
        for (std::size_t i = 0; i < std::min(offered.size(), kOfferedNames); ++i) {
            list += (i == 0 ? "" : ", ") + offered[i];
        }
        return inQuotes(rest) + " is only the start of " + list +
               (offered.size() > kOfferedNames ? ", …" : "");
    }
    if (const Name* missing = missingVariableAtStart(rest)) {
        return inQuotes(missing->typed) + " is no variable here. " +
               (m_variables.empty() ? "This line has none." : "This editor has " + listed(m_variables) + ".");
    }
    if (isLetter(firstCodePoint(rest))) {
        return "No function, constant or variable here begins with " + inQuotes(rest) + ".";
    }
    return rest.starts_with(' ') ? "A blank cannot stand inside a number or a name."
                                 : inQuotes(firstCodePoint(rest)) + " cannot be read here.";
}

} // namespace velmora
