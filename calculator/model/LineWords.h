#pragma once

#include <span>
#include <string_view>

namespace velmora {

/// How the last answer is called in a line.
inline constexpr std::string_view kLastAnswer = "ans";

/// A word of the typed language that is neither a function nor a constant of the user's.
struct LineWord {
    enum class Kind : unsigned char {
        Sign,       ///< an operator or a mark
        Value,      ///< a number by itself, or a part of one
        Variable,   ///< where the edited line has it
        LastAnswer, ///< on the calculator's line alone
        Internal,   ///< made by the parser, never typed
    };

    std::string_view token; ///< its text in a line
    Kind kind;
    std::string_view spelling; ///< the letters that type it, besides the token itself; empty for none
    std::string_view spokenName;
};

std::span<const LineWord> lineWords();

/// The word with that token, or null.
const LineWord* lineWord(std::string_view token);

/// Whether the text means something by itself in a line: "e", "x", "pi". Longer words do so in any case.
bool isLineWord(std::string_view text);

/// Whether typed letters are that word: single letters in their case, longer words in any.
bool spells(std::string_view typed, std::string_view word);

/// Equal but for the case of Latin letters.
bool isSameInAnyCase(std::string_view one, std::string_view other);

} // namespace velmora
