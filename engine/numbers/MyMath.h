#pragma once

namespace velmora {

/// Classification of numbers, shared by evaluators and displays.
class MyMath {
public:
    /// True when x lies within 1e-10 of a whole number. The difference is narrowed to single precision first,
    /// so the bound is that of single precision; whole values of any size count, NaN and infinities do not.
    static bool isInteger(double x);
};

} // namespace velmora
