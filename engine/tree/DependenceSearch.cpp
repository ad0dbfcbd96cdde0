#include "engine/tree/DependenceSearch.h"

#include "engine/tree/Expression.h"

#include <algorithm>

namespace velmora {

namespace {

// A longer chain of references than any list can hold; walking it would exhaust the stack.
constexpr std::size_t kMaximumPath = 500;

} // namespace

bool DependenceSearch::leadsToSought(const Expression& referenced) {
    if (&referenced == &m_sought) {
        return true;
    }
    if (referenced.holdsRecursion() || m_path.size() >= kMaximumPath ||
        std::find(m_path.begin(), m_path.end(), &referenced) != m_path.end()) {
        m_hasFoundCircle = true;
        return false;
    }
    if (!m_entered.insert(&referenced).second) {
        return false;
    }
    m_path.push_back(&referenced);
    const bool found = referenced.refersTo(*this);
    m_path.pop_back();
    return found;
}

bool DependenceSearch::equationLeadsToSought(const Expression& equation) {
    m_height += equation.height();
    if (m_height > Expression::kMaximumHeight) {
        m_hasFoundCircle = true;
    }
    const bool found = m_height <= Expression::kMaximumHeight && leadsToSought(equation);
    m_height -= equation.height();
    return found;
}

} // namespace velmora
