#pragma once

#include <cstdint>

namespace velmora {

/// Bounds in time what is evaluated while it stands, such as the samples of a curve under a finger:
///
///     EvaluationDeadline deadline(monotonicSeconds() + 0.008);
///     while (hasMoreSamples() && !deadline.hasPassed()) {
///         const ComplexValue value = expression.valueWithVariableValue(nextX());
///         if (deadline.hasCutShort()) {
///             break; // this value says nothing: ask again under the next deadline
///         }
///         take(value);
///     }
///
/// An evaluation that is still running when the clock passes the deadline gives up, but never the first one
/// begun under it, so work that is resumed under deadline after deadline comes to its end. One evaluation
/// takes some ten milliseconds at most (EvaluationBudget::kMaximumCost).
///
/// Deadlines may stand one inside the other; the inner one counts. They are for one thread, as all evaluation
/// is.
class EvaluationDeadline {
public:
    /// In seconds of the monotonic clock.
    explicit EvaluationDeadline(double deadline);
    ~EvaluationDeadline();
    EvaluationDeadline(const EvaluationDeadline&) = delete;
    EvaluationDeadline& operator=(const EvaluationDeadline&) = delete;

    /// Whether the time is up. To be asked after every evaluation, for it looks at the clock only when enough
    /// was evaluated since the last look to be worth it.
    bool hasPassed();
    /// Whether an evaluation was given up for the deadline; its value was NaN for that reason alone.
    bool hasCutShort() const { return m_hasCutShort; }
    /// The cost of all evaluated under this deadline, in the units of EvaluationBudget.
    std::int64_t cost() const { return m_cost; }

private:
    friend class EvaluationBudget;

    static EvaluationDeadline* s_current;

    bool looksAtClock();

    EvaluationDeadline* m_outer;
    double m_deadline;
    std::int64_t m_cost = 0;
    std::int64_t m_costAtLook;
    bool m_hasBegun = false; ///< the first evaluation is over
    bool m_hasPassed = false;
    bool m_hasCutShort = false;
};

} // namespace velmora
