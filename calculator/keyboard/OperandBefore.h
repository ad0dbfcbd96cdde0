#pragma once

#include "engine/lines/TokenElement.h"

#include <optional>

namespace velmora {

/// Where the operand begins that ends before a gap of a line, as what stands behind it ("!") takes it: the
/// whole of a number, a variable or constant, a bracketed term with the function that opens it. Nothing when
/// an operator, an open parenthesis, a comma or the start of the line stands before the gap.
std::optional<int> startOfOperandBefore(const TokenArray& tokens, int gap);

} // namespace velmora
