#pragma once

namespace velmora {

/// Acceleration in m/s² along the axes of the device, gravity included, as accelerometers report it.
struct Acceleration {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// Tells a shake of the device from carrying it, laying it down and turning it over: several strong swings,
/// each against the last one, within a short time.
class ShakeDetector {
public:
    /// A reading taken at a time, in seconds of any clock that never goes back. True when it completes a
    /// shake, once for each. Readings that are not numbers are passed over.
    bool accelerationRead(const Acceleration& reading, double time);
    /// Forgets what it has seen, as when the readings pause.
    void reset() { *this = ShakeDetector(); }

private:
    bool m_hasGravity = false;
    Acceleration m_gravity;
    double m_lastTime = 0;
    Acceleration m_lastSwing;
    double m_firstSwingTime = 0;
    double m_quietUntil = 0;
    int m_swings = 0;
};

} // namespace velmora
