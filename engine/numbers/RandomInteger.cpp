#include "engine/numbers/RandomInteger.h"

#include "platform/machine/RandomSource.h"

#include <cmath>
#include <limits>

namespace velmora {

double randomInteger(double a) {
    if (!std::isfinite(a)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    const double bound = std::fabs(std::round(a));
    return bound == 0 ? 0 : std::fmod(randomNumber(), bound);
}

} // namespace velmora
