#include "engine/numbers/Modulo.h"

#include <algorithm>
#include <cmath>

namespace velmora {

double modulo(double a, double b) { return std::fmod(a, b); }

double positiveModulo(double a, double b) {
    const double remainder = std::fmod(a, b);
    if (remainder >= 0) {
        return remainder;
    }
    return remainder + b >= 0 ? remainder + b : remainder - b;
}

std::int64_t moduloSteps(double a, double b) {
    if (a == 0 || b == 0 || !std::isfinite(a) || !std::isfinite(b)) {
        return 0;
    }
    return std::max(std::ilogb(a) - std::ilogb(b), 0);
}

} // namespace velmora
