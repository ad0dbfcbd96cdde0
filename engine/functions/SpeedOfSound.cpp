#include "engine/functions/SpeedOfSound.h"

#include <cmath>
#include <limits>

namespace velmora {

double speedOfSoundInAir(double celsius) {
    constexpr double kAbsoluteZero = -273.15;
    constexpr double kHighest = 1000000;
    if (!(celsius >= kAbsoluteZero && celsius <= kHighest)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return 20.04574 * std::sqrt(celsius + 273.15);
}

} // namespace velmora
