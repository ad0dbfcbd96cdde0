#pragma once

namespace velmora {

/// The speed of sound in dry air, in m/s, at a temperature in °C: that of an ideal gas, 20.04574·√T with T in
/// kelvin. NaN below absolute zero and above 1,000,000 °C.
double speedOfSoundInAir(double celsius);

} // namespace velmora
