#pragma once

#include <string>

namespace velmora {

/// A number in six significant digits, or as many as are asked for, without trailing zeroes, with an
/// exponent where that is shorter ("0.5", "250000", "1e+06"); the same in every locale.
std::string shortNumber(double number, int digits = 6);

} // namespace velmora
