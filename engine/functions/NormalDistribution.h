#pragma once

namespace velmora {

// The standard normal distribution (Abramowitz and Stegun, Handbook of Mathematical Functions, 26.2),
// accurate to the last digits in both tails, where the textbook formulas with erf cancel.

/// Its density e^(−a²/2) / √(2π).
double normalDensity(double a);
/// The probability of a value up to a.
double cumulativeNormal(double a);
/// The probability of a value between a and b; negative when b is below a.
double normalBetween(double a, double b);

/// The error function.
double errorFunction(double a);

} // namespace velmora
