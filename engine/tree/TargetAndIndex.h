#pragma once

#include <optional>
#include <string_view>

namespace velmora {

class ExpressionList;

/// One slot of one list: what a user function such as "y2(" refers to.
struct TargetAndIndex {
    const ExpressionList* target; ///< not owned; null when no equations are installed
    int intIndex;                 ///< counted from 0; may lie outside the list

    /// The slot that a token names: at least two characters, "y" and then a digit. Only the second
    /// character is checked, so "y12" is slot 11. Nothing for any other text.
    static std::optional<TargetAndIndex> newTargetAndIndexWithToken(std::string_view token);
    /// Whether the text names a slot at all.
    static bool namesSlot(std::string_view token);
};

} // namespace velmora
