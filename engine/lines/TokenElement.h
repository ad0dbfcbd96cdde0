#pragma once

#include "engine/lines/NamedExpression.h"
#include "engine/lines/Token.h"

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velmora {

class Expression;
class PropertyList;

/// One element of a line: normally a token. A finished expression and a named one are taken as they
/// stand; a plain text is a token not made yet, as old saved files hold them.
class TokenElement {
public:
    TokenElement(Token token) : m_element(std::move(token)) {}
    TokenElement(NamedExpression expression) : m_element(std::move(expression)) {}
    TokenElement(std::shared_ptr<const Expression> expression) : m_element(std::move(expression)) {}
    TokenElement(std::string text) : m_element(std::move(text)) {}

    const Token* token() const { return std::get_if<Token>(&m_element); }
    const NamedExpression* namedExpression() const { return std::get_if<NamedExpression>(&m_element); }
    /// The finished expression; null when the element is of another kind.
    const std::shared_ptr<const Expression>* expression() const {
        return std::get_if<std::shared_ptr<const Expression>>(&m_element);
    }
    const std::string* text() const { return std::get_if<std::string>(&m_element); }

    /// Tokens, named expressions, numbers and texts have one; other expressions show nothing.
    std::string toDisplayString() const;

    /// The archived form: a dictionary that names its kind, or a plain text. Nothing (an empty list)
    /// for an expression that has no archived form.
    PropertyList archived() const;
    static std::optional<TokenElement> unarchived(const PropertyList& list);

private:
    std::variant<Token, NamedExpression, std::shared_ptr<const Expression>, std::string> m_element;
};

/// The stored form of everything the user types.
using TokenArray = std::vector<TokenElement>;

/// One plain text per character.
TokenArray textsOfCharacters(std::string_view text);
/// Replaces every plain text by a token of that text.
void changeStringsToTokens(TokenArray& tokens);

/// The display texts of the elements, one after the other.
std::string toDisplayString(const TokenArray& tokens);

PropertyList archivedTokenArray(const TokenArray& tokens);
/// Elements that cannot be read are skipped.
TokenArray unarchivedTokenArray(const PropertyList& list);

} // namespace velmora
