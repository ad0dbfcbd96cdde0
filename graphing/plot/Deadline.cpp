#include "graphing/plot/Deadline.h"

#include "platform/machine/Clock.h"

#include <utility>

namespace velmora {

namespace {

constexpr int kMostStepsBetweenLooks = 128;
constexpr double kSoon = 0.0005; // seconds between two looks, at least

} // namespace

Deadline::Deadline(double end)
    : m_evaluations(end), m_end(end), m_start(monotonicSeconds()), m_lastLook(m_start) {}

bool Deadline::hasPassed() {
    if (hasCutShort()) {
        return true;
    }
    if (++m_steps < m_stepsBetweenLooks) {
        return false;
    }
    const double formerLook = std::exchange(m_lastLook, monotonicSeconds());
    if (m_lastLook > m_end) {
        return true;
    }
    m_steps = 0;
    if (m_lastLook - formerLook < kSoon && m_stepsBetweenLooks < kMostStepsBetweenLooks) {
        m_stepsBetweenLooks *= 2;
    }
    return false;
}

double Deadline::secondsUsed() const { return monotonicSeconds() - m_start; }

} // namespace velmora
