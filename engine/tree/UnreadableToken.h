#pragma once

#include "engine/lines/TokenElement.h"

#include <cstddef>
#include <optional>
#include <span>

namespace velmora {

/// Where the reading of a line fails: the first token that no line which can be read could have in its place
/// behind the tokens before it. The number of tokens where only something is missing at the end, such as an
/// operand or a ")". Nothing for a line that can be read, and for one whose tree would only be too high.
std::optional<std::size_t> firstUnreadableToken(std::span<const TokenElement> tokens);

} // namespace velmora
