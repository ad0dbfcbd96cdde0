#include "engine/numbers/Comparison.h"

#include <cmath>

namespace velmora {

double minimum(double a, double b) {
    if (std::isnan(a)) {
        return a;
    }
    return a < b ? a : b; // b when it is NaN
}

double maximum(double a, double b) {
    if (std::isnan(a)) {
        return a;
    }
    return a > b ? a : b; // b when it is NaN
}

double isGreaterOrEqual(double a, double b) { return a >= b ? 1 : 0; }
double isGreater(double a, double b) { return a > b ? 1 : 0; }
double isLessOrEqual(double a, double b) { return a <= b ? 1 : 0; }
double isLess(double a, double b) { return a < b ? 1 : 0; }

} // namespace velmora
