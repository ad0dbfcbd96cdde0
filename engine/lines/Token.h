#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmora {

class KeyedArchiver;
class KeyedUnarchiver;
class TokenElement;
using TokenArray = std::vector<TokenElement>;

/// One key's worth of input: a digit, an operator, a variable, a function with its opening parenthesis,
/// or a constant. Everything a token does follows from its one text.
class Token {
public:
    explicit Token(std::string internalRepresentation) : m_text(std::move(internalRepresentation)) {}
    static Token tokenWithString(std::string text) { return Token(std::move(text)); }
    /// The mark that stands for the cursor in display texts.
    static Token cursorToken() { return Token("_"); }

    /// The tokens that a key or list entry inserts. Trailing commas become tokens of their own, so
    /// "normVarBetween(,," is the function followed by the separators that its arguments need.
    /// The text must hold something other than commas.
    static TokenArray tokenArrayWithString(std::string_view text);

    const std::string& internalRepresentation() const { return m_text; }
    const std::string& description() const { return m_text; }

    /// True for "@k1", "@k2", …: a reference into the user's list of constants.
    bool isUserDefinedConstant() const;

    /// The text on screen: the name of a user's constant, the label of a named constant ("G" of
    /// "G=6.6742(8)"), otherwise the token's own text.
    std::string toDisplayString() const;
    /// The form in which function lists name a function: "sin(" is listed as "sin()".
    std::string functionListDisplayString() const;

    void encodeWithCoder(KeyedArchiver& coder) const;
    /// Nothing when the archive holds no text for the token.
    static std::optional<Token> decode(const KeyedUnarchiver& coder);

    bool operator==(const Token&) const = default;

private:
    std::string m_text;
};

/// The display text of a plain text in a token array or on a key: shorter than two characters as it
/// stands, "k@abc" as "@abc", otherwise up to the first "=".
std::string toDisplayString(std::string_view text);

/// True for a named constant whose last digit is uncertain: label, "=", value with its last digit in
/// parentheses, such as "G=6.6742(8)".
bool isConstantWithUncertainFinalDigit(std::string_view text);

} // namespace velmora
