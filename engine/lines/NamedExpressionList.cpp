#include "engine/lines/NamedExpressionList.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::size_t kPaddedNameCount = 50;

} // namespace

NamedExpressionList::NamedExpressionList(int max, int n)
    : ExpressionList(max, n), m_names(static_cast<std::size_t>(std::max(n, 0))) {}

void NamedExpressionList::setNameArray(std::vector<std::string> names) {
    names.resize(static_cast<std::size_t>(std::max(maxExpressions(), 0)));
    m_names = std::move(names);
    noteChange();
}

void NamedExpressionList::setNameAtIndex(int index, std::string name) {
    if (index < 0) {
        return;
    }
    const auto i = static_cast<std::size_t>(index);
    m_names.resize(std::max(m_names.size(), i + 1));
    m_names[i] = std::move(name);
    noteChange();
}

std::string NamedExpressionList::fullFunctionNameWithIndex(int index) const {
    m_names.resize(std::max(m_names.size(), kPaddedNameCount));
    const auto i = static_cast<std::size_t>(index);
    if (index >= 0 && i < m_names.size() && !m_names[i].empty()) {
        return m_names[i];
    }
    const std::string name = internalRepresentationWithIndex(index);
    return functionName().empty() ? name : name.substr(1);
}

} // namespace velmora
