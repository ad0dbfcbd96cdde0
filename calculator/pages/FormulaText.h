#pragma once

#include "engine/lines/TokenElement.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The right side of a formula as a page holds it: what would be typed into a line ("pi*r^2"), with letters
/// of its own for what has to be asked ("r", "v_0") and shipped constants by their label in braces ("{c}").
/// A letter is one character, or one with an index behind "_"; "e", "i", "x", "y", "t" and "θ" are those
/// of a line.
class FormulaText {
public:
    explicit FormulaText(std::string text) : m_text(std::move(text)) {}

    /// The letters that are none of these variables, in the order in which they stand. Nothing when the text
    /// cannot be read.
    std::optional<std::vector<std::string>> letters(const std::vector<std::string>& variables = {
                                                        "x", "y", "t", "θ"}) const;

    /// What stands in the place of a letter; nothing leaves the letter itself, as a token.
    using Values = std::function<std::optional<TokenArray>(const std::string& letter)>;
    /// The tokens; nothing when the text cannot be read.
    std::optional<TokenArray> tokens(const Values& values) const;

private:
    std::string m_text;
};

/// The tokens of a number as it is typed: digits, point, sign and exponent ("-1.5E-9"). A negative number
/// stands in brackets. Nothing for a text that is no finite number.
std::optional<TokenArray> tokensOfNumber(std::string_view text);

/// The token of a shipped constant ("c=299792458") by its label; nothing for a label that no list has.
std::optional<std::string> shippedConstant(std::string_view label);

} // namespace velmora
