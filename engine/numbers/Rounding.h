#pragma once

namespace velmora {

/// The nearest whole number, halves away from zero.
double roundToNearest(double a);
/// The smallest whole number not below a.
double roundUp(double a);
/// The largest whole number not above a.
double roundDown(double a);

} // namespace velmora
