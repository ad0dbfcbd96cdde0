#include "platform/screens/TapCounter.h"

#include <cmath>

namespace velmora {

namespace {

constexpr double kSeconds = 0.4; // a tap's length, and the longest pause between two
constexpr double kMoved = 10;    // points within which a finger rests
constexpr double kApart = 30;    // points within which two taps are at one place

double distance(Point a, Point b) { return std::hypot(a.x - b.x, a.y - b.y); }

} // namespace

int TapCounter::touchBegan(Point location, double time) {
    const bool inARow = m_count > 0 && time - m_lastTime < kSeconds && distance(location, m_began) < kApart;
    m_count = inARow ? m_count + 1 : 1;
    m_began = location;
    m_lastTime = time;
    return m_count;
}

int TapCounter::touchEnded(Point location, double time) {
    if (time - m_lastTime >= kSeconds || distance(location, m_began) >= kMoved) {
        m_count = 0;
    }
    m_lastTime = time;
    return m_count;
}

} // namespace velmora
