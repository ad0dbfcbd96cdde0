#include "engine/numbers/Rounding.h"

#include <cmath>

namespace velmora {

double roundToNearest(double a) { return std::round(a); }
double roundUp(double a) { return std::ceil(a); }
double roundDown(double a) { return std::floor(a); }

} // namespace velmora
