#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

class Expression;
class KeyedArchiver;
class KeyedUnarchiver;
class TokenElement;
using TokenArray = std::vector<TokenElement>;

/// A finished expression under a name, such as "ans". In a token array it shows as its name and parses
/// to its expression.
class NamedExpression {
public:
    NamedExpression() = default;
    NamedExpression(std::shared_ptr<const Expression> expression, std::string name)
        : m_name(std::move(name)), m_expression(std::move(expression)) {}
    /// Parses the tokens into the expression.
    NamedExpression(const TokenArray& tokens, std::string name);

    const std::string& name() const { return m_name; }
    void setName(std::string name) { m_name = std::move(name); }
    /// The expression, or null.
    const std::shared_ptr<const Expression>& expression() const { return m_expression; }
    void setExpression(std::shared_ptr<const Expression> expression) { m_expression = std::move(expression); }

    const std::string& toDisplayString() const { return m_name; }

    /// Numbers are written with their expression; any other tree has no archived form and is left out.
    void encodeWithCoder(KeyedArchiver& coder) const;
    static NamedExpression decode(const KeyedUnarchiver& coder);

private:
    std::string m_name;
    std::shared_ptr<const Expression> m_expression;
};

} // namespace velmora
