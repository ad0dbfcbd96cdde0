#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Counting and walking the code points of UTF-8 text. In text that is not valid UTF-8 each byte that
/// belongs to no well-formed sequence counts as one code point, so every byte is always covered.

/// The number of code points.
std::size_t codePointCount(std::string_view text);

/// The text cut into its code points.
std::vector<std::string> splitCodePoints(std::string_view text);

/// The first code point, empty for an empty text.
std::string_view firstCodePoint(std::string_view text);

/// The last code point, empty for an empty text.
std::string_view lastCodePoint(std::string_view text);

/// What follows the first code points; empty when there are no more than that.
std::string_view dropFirst(std::string_view text, std::size_t count = 1);

/// What precedes the last code points; empty when there are no more than that.
std::string_view dropLast(std::string_view text, std::size_t count = 1);

/// The first code points, or the whole text when there are no more than that.
std::string_view takeFirst(std::string_view text, std::size_t count);

/// Whether the text is well-formed UTF-8 (RFC 3629: shortest forms, no surrogates, at most U+10FFFF).
bool isValidUtf8(std::string_view text);

/// The text with each stray byte replaced by U+FFFD, the replacement character.
std::string validUtf8(std::string_view text);

} // namespace velmora
