#pragma once

#include "engine/tree/Expression.h"

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

namespace velmora {

/// The nodes of a line before they are joined to a tree, or the error that ends its parse.
struct Leaves {
    ExpressionArray nodes;
    std::string_view error; ///< empty when every token has its node
    std::size_t errorPosition = std::numeric_limits<std::size_t>::max(); ///< the first token without one
};

/// The first pass of the parser. `positions`, where given, gets the first token of each node.
Leaves leavesOfTokens(std::span<const TokenElement> tokens, std::vector<std::size_t>* positions = nullptr);

} // namespace velmora
