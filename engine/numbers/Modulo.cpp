#include "engine/numbers/Modulo.h"

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

} // namespace velmora
