#include "platform/machine/ShakeDetector.h"

#include <cmath>

namespace velmora {

namespace {

constexpr double kStrong = 12;        // m/s² beyond gravity: more than a step, a stair or a brisk turn gives
constexpr int kSwings = 4;            // to and fro twice
constexpr double kShakeSeconds = 1;   // within which the swings follow each other
constexpr double kPauseSeconds = 1;   // after a shake, so that its last swings do not begin another
constexpr double kGravitySeconds = 1; // over which gravity's direction is averaged

double dot(const Acceleration& a, const Acceleration& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

} // namespace

bool ShakeDetector::accelerationRead(const Acceleration& reading, double time) {
    if (!std::isfinite(dot(reading, reading))) {
        return false;
    }
    if (!m_hasGravity) {
        m_hasGravity = true;
        m_gravity = reading;
        m_lastTime = time;
        return false;
    }
    const Acceleration own{reading.x - m_gravity.x, reading.y - m_gravity.y, reading.z - m_gravity.z};
    const double share = 1 - std::exp(-(time - m_lastTime) / kGravitySeconds);
    m_gravity = {m_gravity.x + share * own.x, m_gravity.y + share * own.y, m_gravity.z + share * own.z};
    m_lastTime = time;

    if (dot(own, own) < kStrong * kStrong || time < m_quietUntil) {
        return false;
    }
    if (m_swings > 0 && time - m_firstSwingTime > kShakeSeconds) {
        m_swings = 0;
    }
    if (m_swings > 0 && dot(own, m_lastSwing) >= 0) {
        return false; // still the same swing
    }
    if (m_swings == 0) {
        m_firstSwingTime = time;
    }
    m_lastSwing = own;
    if (++m_swings < kSwings) {
        return false;
    }
    m_swings = 0;
    m_quietUntil = time + kPauseSeconds;
    return true;
}

} // namespace velmora
