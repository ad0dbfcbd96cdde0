#pragma once

#include "engine/numbers/ComplexValue.h"

#include <cstdint>

namespace velmora {

class EvaluationDeadline;
class Expression;

/// What one evaluation may still spend. Costs are counted in steps of real arithmetic, each about a
/// nanosecond; functions cost what they take (UnivarTable, BivarTable). Circles among equations that a file
/// brought in, and equations that call one another many times over, end as NaN instead of never.
class EvaluationBudget {
public:
    /// What a whole evaluation may cost, some ten milliseconds; past it the value is NaN.
    static constexpr std::int64_t kMaximumCost = 8'000'000;
    /// How many equations it may enter one inside the other, with no more than Expression::kMaximumHeight
    /// levels in all.
    static constexpr int kMostNestedCalls = 500;

    EvaluationBudget();

    bool isSpent() const { return m_left < 0; }
    /// Accounts for work to come; false when that is too much, and then for all later work.
    bool spend(std::int64_t cost) {
        m_left -= cost;
        return m_left >= 0 || drawsOnReserve();
    }

    /// Enters an equation that the evaluation calls; false when too many are entered one inside the other for
    /// the stack, which the height of the caller's own tree does not tell. To be left again only when true.
    bool enter(const Expression& equation);
    void leave(const Expression& equation);

    /// The outcome of the whole evaluation: the value, or NaN when the budget did not suffice for it.
    ComplexValue settled(ComplexValue value) const;

private:
    static constexpr int kCostOfCall = 30;

    bool drawsOnReserve();

    std::int64_t m_left;       ///< may be spent before anybody looks at the clock
    std::int64_t m_reserve;    ///< may be spent after that
    std::int64_t m_heightLeft; ///< of the equations entered one inside the other
    int m_callsLeft = kMostNestedCalls;
    EvaluationDeadline* m_deadline; ///< null when none stands
};

} // namespace velmora
