#pragma once

#include "engine/intervals/UnivarIntervals.h"

namespace velmora {

/// x! = Γ(x + 1), with a pole at every negative whole number.
DecoratedInterval factorialInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode);

/// n! / (n − k)! and that divided by k!. Numbers close to whole ones count as these, which moves the value by
/// less than a hundred-millionth of it.
DecoratedInterval permutationsInterval(const DecoratedInterval& n, const DecoratedInterval& k);
DecoratedInterval combinationsInterval(const DecoratedInterval& n, const DecoratedInterval& k);

} // namespace velmora
