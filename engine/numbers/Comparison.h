#pragma once

namespace velmora {

// Comparisons of real numbers. The relations answer 1 or 0, and 0 whenever a side is NaN.

/// NaN when either number is.
double minimum(double a, double b);
double maximum(double a, double b);

double isGreaterOrEqual(double a, double b);
double isGreater(double a, double b);
double isLessOrEqual(double a, double b);
double isLess(double a, double b);

} // namespace velmora
