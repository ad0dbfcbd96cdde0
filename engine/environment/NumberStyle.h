#pragma once

namespace velmora {

/// How numbers are written; the defaults are those of a first start.
struct NumberStyle {
    int displayDigits = 5;       ///< digits after the decimal point, 0 or more
    bool trailingZeroes = false; ///< keep the zeroes at the end of the fraction
    int maxDigitsForDecimal = 9; ///< magnitudes of 10 to this power and above take an exponent
    bool commas = false;         ///< separate groups of three digits
};

} // namespace velmora
