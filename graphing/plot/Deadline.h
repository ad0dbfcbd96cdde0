#pragma once

#include "engine/tree/EvaluationDeadline.h"

namespace velmora {

/// A moment at which work stops. It is asked after every step, and looks at the clock, which costs as much as
/// an evaluation, as seldom as the pace of the steps allows. An evaluation that runs into it is given up.
class Deadline {
public:
    /// In seconds of the monotonic clock.
    explicit Deadline(double end);
    bool hasPassed();
    /// Whether the last value says nothing, for it was given up: it is to be asked for again.
    bool hasCutShort() const { return m_evaluations.hasCutShort(); }
    /// Since this was made, as of now.
    double secondsUsed() const;

private:
    EvaluationDeadline m_evaluations;
    double m_end;
    double m_start;
    double m_lastLook;
    int m_steps = 0;
    int m_stepsBetweenLooks = 1; // few where steps are slow
};

} // namespace velmora
