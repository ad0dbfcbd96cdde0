#pragma once

#include "calculator/keyboard/TypeableNames.h"
#include "engine/lines/TokenElement.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The longest text, and the longest row of tokens, that a line takes at once.
inline constexpr std::size_t kLongestPaste = 10'000;

/// What a text of another program is in a line: its tokens, or why it is none, for the user.
struct PastedText {
    std::optional<TokenArray> tokens;
    std::string reason;
};

/// Reads a text as the hardware keyboard would, but all of it or nothing. Beyond that it understands what
/// other programs write: commas between groups of three digits (outside the arguments of a function),
/// "1e-5" as a power of ten, a "√" before one operand, and at the start of a line a "+" before its number.
PastedText readPastedText(std::string_view text, const TypeableNames& names, bool isAtStartOfLine);

} // namespace velmora
