#pragma once

#include "engine/environment/NumberStyle.h"
#include "engine/numbers/ComplexValue.h"

#include <string>
#include <string_view>

namespace velmora {

/// The text of a number in the given style, the same in every locale. Magnitudes below 0.001 and from
/// 10^maxDigitsForDecimal on take an exponent ("1.23E+05"). NaN is "undefined", infinities have texts of
/// their own. A negative count of digits counts as 0.
std::string displayStringWithDouble(double x, const NumberStyle& style);
std::string displayStringWithDouble(double x, int displayDigits, bool trailingZeroes, int maxDigitsForDecimal,
                                    bool commas = true);

/// The same in the style of the user's settings.
std::string displayStringWithDouble(double x);

/// The short display of a complex value, where only real ones can be shown: "complex", unless the imaginary
/// part is 0 or below the user's rounding threshold.
std::string displayStringWithComplex(ComplexValue z);

/// Every character is one of 0 to 9. True for the empty text.
bool isAllDigits(std::string_view text);

} // namespace velmora
