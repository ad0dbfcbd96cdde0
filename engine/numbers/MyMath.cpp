#include "engine/numbers/MyMath.h"

#include <cmath>

namespace velmora {

bool MyMath::isInteger(double x) {
    constexpr double kTolerance = 1e-10;
    // The narrowing is intended behaviour: it is part of what users' saved lines evaluate to.
    const auto difference = static_cast<float>(x - std::round(x));
    return std::fabs(difference) < kTolerance;
}

} // namespace velmora
