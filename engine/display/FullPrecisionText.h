#pragma once

#include "engine/numbers/ComplexValue.h"

#include <string>

namespace velmora {

/// The value with all its digits, for other programs: the shortest text that reads back as the same double,
/// "a+bi" for a complex value, the same in every locale. "undefined" for one that is not a number.
std::string fullPrecisionText(ComplexValue value);

} // namespace velmora
