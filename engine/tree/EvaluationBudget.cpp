#include "engine/tree/EvaluationBudget.h"

#include "engine/tree/EvaluationDeadline.h"
#include "engine/tree/Expression.h"
#include "platform/machine/Clock.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

/// Between two looks at the clock, which takes as long as a few dozen steps: some microseconds.
constexpr std::int64_t kCostBetweenLooks = 4'000;
/// What a caller does with a value costs too, however cheap the value itself is.
constexpr std::int64_t kCostOfAnyValue = 20;

} // namespace

EvaluationDeadline* EvaluationDeadline::s_current = nullptr;

EvaluationBudget::EvaluationBudget()
    : m_left(kMaximumCost), m_reserve(0), m_heightLeft(Expression::kMaximumHeight),
      m_deadline(EvaluationDeadline::s_current) {
    if (m_deadline != nullptr && m_deadline->m_hasBegun) {
        m_left = kCostBetweenLooks;
        m_reserve = kMaximumCost - kCostBetweenLooks;
    }
}

bool EvaluationBudget::drawsOnReserve() {
    if (m_reserve == 0) {
        return false;
    }
    if (m_deadline->looksAtClock()) {
        m_deadline->m_hasCutShort = true;
        return false;
    }
    const std::int64_t wanted = std::max(kCostBetweenLooks, kCostBetweenLooks - m_left);
    const std::int64_t drawn = std::min(m_reserve, wanted);
    m_reserve -= drawn;
    m_left += drawn;
    return m_left >= 0;
}

bool EvaluationBudget::enter(const Expression& equation) {
    if (m_callsLeft == 0 || m_heightLeft < equation.height()) {
        m_left = -1; // for good: a circle that branches would come here from every branch
        m_reserve = 0;
    }
    if (!spend(kCostOfCall)) {
        return false;
    }
    m_heightLeft -= equation.height();
    --m_callsLeft;
    return true;
}

void EvaluationBudget::leave(const Expression& equation) {
    m_heightLeft += equation.height();
    ++m_callsLeft;
}

ComplexValue EvaluationBudget::settled(ComplexValue value) const {
    if (m_deadline != nullptr) {
        m_deadline->m_cost += kMaximumCost - m_reserve - m_left + kCostOfAnyValue;
        m_deadline->m_hasBegun = true;
    }
    return isSpent() ? undefinedValue() : value;
}

EvaluationDeadline::EvaluationDeadline(double deadline)
    : m_outer(std::exchange(s_current, this)), m_deadline(deadline), m_costAtLook(-kCostBetweenLooks) {}

EvaluationDeadline::~EvaluationDeadline() {
    s_current = m_outer;
    if (m_outer != nullptr) {
        m_outer->m_cost += m_cost;
    }
}

bool EvaluationDeadline::looksAtClock() {
    m_hasPassed = m_hasPassed || monotonicSeconds() > m_deadline;
    return m_hasPassed;
}

bool EvaluationDeadline::hasPassed() {
    if (m_hasPassed || m_cost - m_costAtLook < kCostBetweenLooks) {
        return m_hasPassed;
    }
    m_costAtLook = m_cost;
    return looksAtClock();
}

} // namespace velmora
