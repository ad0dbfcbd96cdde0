#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// The messages shown in place of a value.
inline constexpr std::string_view kTooManyDecimalPoints = "Too many decimal points";
inline constexpr std::string_view kTooManyEs = "Too many Es";
inline constexpr std::string_view kParenthesesError = "Parse error (parentheses?)";
inline constexpr std::string_view kMissingCommaError = "Parse error (missing comma?)";
inline constexpr std::string_view kUnableToParse = "Unable to parse";
inline constexpr std::string_view kUndefined = "Undefined";
inline constexpr std::string_view kRecursionFound = "Recursion found.";

/// kUnableToParse as a string that every unreadable node can point at.
const std::string& unableToParseText();

} // namespace velmora
