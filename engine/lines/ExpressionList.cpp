#include "engine/lines/ExpressionList.h"

#include "engine/environment/DefinitionRevision.h"
#include "engine/tree/EmptyExpression.h"
#include "engine/tree/Expression.h"
#include "platform/files/KeyedArchive.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

/// One saved entry: an entry's fields, or an array of tokens or texts as old files hold them.
std::optional<ExpressionWithTokenArray> restoredEntry(const PropertyList& saved) {
    if (saved.asDictionary() != nullptr) {
        return ExpressionWithTokenArray::decode(KeyedUnarchiver(saved));
    }
    if (saved.asArray() != nullptr) {
        TokenArray tokens = unarchivedTokenArray(saved);
        changeStringsToTokens(tokens);
        return ExpressionWithTokenArray(std::move(tokens));
    }
    return std::nullopt;
}

} // namespace

ExpressionList::ExpressionList(int max, int n) : m_keepsNewest(n < max) { appendEmptyEntries(max, n); }

void ExpressionList::growToMax(int max, int n) { appendEmptyEntries(max, n); }

void ExpressionList::appendEmptyEntries(int max, int n) {
    m_maxExpressions = max;
    for (int i = 0; i < n; ++i) {
        m_entries.push_back(std::make_unique<ExpressionWithTokenArray>());
    }
    definitionsChanged();
}

std::vector<std::string> ExpressionList::variableNameArray() const {
    constexpr std::string_view kSeparator = ", ";
    std::vector<std::string> names;
    std::size_t begin = 0;
    for (std::size_t end = 0; end != std::string::npos; begin = end + kSeparator.size()) {
        end = m_variableNameString.find(kSeparator, begin);
        names.push_back(m_variableNameString.substr(begin, end == std::string::npos ? end : end - begin));
    }
    return names;
}

std::string ExpressionList::internalRepresentationWithIndex(int index) const {
    return m_functionName + std::to_string(index + 1);
}

std::string ExpressionList::fullFunctionNameWithIndex(int index) const {
    return internalRepresentationWithIndex(index) + "(" + m_variableNameString + ")";
}

std::string ExpressionList::descriptionWithIndex(int index) const {
    return fullFunctionNameWithIndex(index) + "=" + expressionString(index);
}

bool ExpressionList::hasEntry(int index) const { return index >= 0 && index < nExpressions(); }

const ExpressionWithTokenArray* ExpressionList::entryAtIndex(int index) const {
    return hasEntry(index) ? m_entries[static_cast<std::size_t>(index)].get() : nullptr;
}

ExpressionWithTokenArray* ExpressionList::entryAtIndex(int index) {
    return hasEntry(index) ? m_entries[static_cast<std::size_t>(index)].get() : nullptr;
}

std::shared_ptr<const Expression> ExpressionList::expressionAtIndex(int index) const {
    const ExpressionWithTokenArray* entry = entryAtIndex(index);
    return entry != nullptr ? entry->expression() : nullptr;
}

const TokenArray* ExpressionList::expressionTokenArray(int index) const {
    const ExpressionWithTokenArray* entry = entryAtIndex(index);
    return entry != nullptr ? &entry->tokenArray() : nullptr;
}

std::string ExpressionList::expressionString(int index) const {
    const ExpressionWithTokenArray* entry = entryAtIndex(index);
    return entry != nullptr ? entry->toDisplayString() : std::string();
}

bool ExpressionList::nonemptyExpressionAtIndex(int index) const {
    const auto tree = expressionAtIndex(index);
    return tree != nullptr && dynamic_cast<const EmptyExpression*>(tree.get()) == nullptr;
}

std::shared_ptr<const Expression> ExpressionList::lastExpression() const {
    return expressionAtIndex(nExpressions() - 1);
}

void ExpressionList::noteChange() const {
    definitionsChanged();
    if (m_observer) {
        m_observer();
    }
}

void ExpressionList::reset() {
    m_entries.clear();
    noteChange();
}

void ExpressionList::addExpressionTokenArray(TokenArray tokens) {
    m_entries.push_back(std::make_unique<ExpressionWithTokenArray>(std::move(tokens)));
    if (nExpressions() > m_maxExpressions) {
        m_entries.erase(m_entries.begin());
    }
    noteChange();
}

bool ExpressionList::setExpressionAtIndex(int index, const ExpressionWithTokenArray& entry,
                                          bool checkForRecursion) {
    if (index < 0) {
        return false;
    }
    while (nExpressions() <= index) {
        m_entries.push_back(std::make_unique<ExpressionWithTokenArray>());
    }
    std::unique_ptr<ExpressionWithTokenArray>& slot = m_entries[static_cast<std::size_t>(index)];
    std::unique_ptr<ExpressionWithTokenArray> former = std::exchange(slot, entry.copy());
    definitionsChanged(); // so the check sees every definition as it would be
    if (checkForRecursion && slot->expression()->hasRecursion()) {
        slot = std::move(former);
        definitionsChanged();
        return false;
    }
    noteChange();
    return true;
}

PropertyList ExpressionList::expressionTokenArrays() const {
    PropertyArray array;
    for (const auto& entry : m_entries) {
        KeyedArchiver coder;
        entry->encodeWithCoder(coder);
        array.push_back(coder.propertyList());
    }
    return array;
}

void ExpressionList::loadWithObject(const PropertyList& object) {
    const PropertyArray* saved = object.asArray();
    if (saved == nullptr) {
        return;
    }
    const std::size_t capacity = static_cast<std::size_t>(std::max(m_maxExpressions, 0));
    const std::size_t count = std::min(saved->size(), capacity);
    const std::size_t first = m_keepsNewest ? saved->size() - count : 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (const auto entry = restoredEntry((*saved)[first + i])) {
            setExpressionAtIndex(static_cast<int>(i), *entry, false);
        }
    }
}

} // namespace velmora
