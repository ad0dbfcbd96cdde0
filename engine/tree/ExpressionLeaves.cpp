// The first pass of the parser: from the tokens of a line to its nodes.

#include "engine/tree/ExpressionLeaves.h"
#include "engine/environment/Environment.h"
#include "engine/lines/NamedExpressionList.h"
#include "engine/tree/BivarFunction.h"
#include "engine/tree/EmptyExpression.h"
#include "engine/tree/ErrorExpression.h"
#include "engine/tree/ErrorTexts.h"
#include "engine/tree/Expression.h"
#include "engine/tree/GroupingMarks.h"
#include "engine/tree/Number.h"
#include "engine/tree/SharedExpression.h"
#include "engine/tree/TriFunction.h"
#include "engine/tree/UnivarFunction.h"
#include "engine/tree/Variable.h"
#include "platform/text/Log.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <charconv>

namespace velmora {

namespace {

using Node = std::unique_ptr<Expression>;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// A finished tree as a node of this line. Numbers and variables are small enough to stand here
/// themselves; any other tree is shared.
Node nodeOfExpression(std::shared_ptr<const Expression> expression) {
    if (const auto* number = dynamic_cast<const Number*>(expression.get())) {
        return std::make_unique<Number>(number->number());
    }
    if (const auto* variable = dynamic_cast<const Variable*>(expression.get())) {
        return std::make_unique<Variable>(variable->variable());
    }
    return std::make_unique<SharedExpression>(std::move(expression));
}

/// The user's constant that "@k3" refers to.
Node nodeOfConstant(std::string_view text) {
    const std::string_view digits = dropFirst(text, 2);
    int number = 0;
    const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const NamedExpressionList* constants = Environment::current().constants();
    if (problem != std::errc() || number < 1 || constants == nullptr ||
        constants->entryAtIndex(number - 1) == nullptr) {
        return std::make_unique<ErrorExpression>(kUnableToParse);
    }
    std::shared_ptr<const Expression> constant = constants->expressionAtIndex(number - 1);
    if (constant == nullptr) { // it is being parsed at this moment, so it refers to itself
        return std::make_unique<ErrorExpression>(kRecursionFound, ErrorExpression::Cause::Recursion);
    }
    return std::make_unique<SharedExpression>(std::move(constant));
}

/// Most tokens of a line are one character long, and these are known without searching any table.
Node nodeOfCharacter(char character) {
    switch (character) {
    case '+':
        return std::make_unique<BivarFunction>(BivarType::Add);
    case '-':
        return std::make_unique<BivarFunction>(BivarType::Subtract);
    case '*':
        return std::make_unique<BivarFunction>(BivarType::Multiply);
    case '/':
        return std::make_unique<BivarFunction>(BivarType::Divide);
    case '^':
        return std::make_unique<BivarFunction>(BivarType::Power);
    case 'N':
        return std::make_unique<UnivarFunction>(UnivarType::Negation);
    case '(':
        return std::make_unique<LeftParen>();
    case ')':
        return std::make_unique<RightParen>();
    case ',':
        return std::make_unique<Comma>();
    case 'x':
    case 't':
        return std::make_unique<Variable>(0);
    case 'y':
        return std::make_unique<Variable>(1);
    default:
        return isDigit(character) ? std::make_unique<Number>(character - '0')
                                  : Number::newNumberWithText({&character, 1});
    }
}

Node nodeOfToken(const Token& token) {
    const std::string_view text = token.internalRepresentation();
    if (text.size() == 1 && text.front() != '@') {
        return nodeOfCharacter(text.front());
    }
    if (text.empty()) {
        return std::make_unique<EmptyExpression>();
    }
    if (text.front() == '@') {
        return nodeOfConstant(text);
    }
    if (auto function = UnivarFunction::newFunctionWithToken(token)) {
        return function;
    }
    if (const BivarType type = bivarTypeWithToken(text); type != BivarType::NoOperator) {
        return std::make_unique<BivarFunction>(type);
    }
    if (TriFunction::acceptsToken(text)) {
        return std::make_unique<TriFunction>();
    }
    if (const int type = Variable::typeWithText(text); type != 2) {
        return std::make_unique<Variable>(type);
    }
    return Number::newNumberWithText(text);
}

bool isSingleCharacter(const TokenElement& element, char character) {
    const Token* token = element.token();
    return token != nullptr && token->internalRepresentation().size() == 1 &&
           token->internalRepresentation().front() == character;
}

bool startsNumber(const TokenElement& element) {
    const Token* token = element.token();
    return token != nullptr && token->internalRepresentation().size() == 1 &&
           (isDigit(token->internalRepresentation().front()) ||
            token->internalRepresentation().front() == '.');
}

/// The digits, points and exponent of one number, gathered from the tokens of a line.
class NumberGatherer {
public:
    explicit NumberGatherer(const Token& first) { append(first.internalRepresentation()); }

    /// Takes the next token of the line if it continues the number.
    bool accepts(const TokenElement& element) {
        const Token* token = element.token();
        if (token == nullptr || token->internalRepresentation().empty()) {
            return false;
        }
        const std::string_view text = token->internalRepresentation();
        const bool isExponentSign = text.front() == '-' && m_lastWasE;
        // Only a lone "E" is the exponent mark; a named constant may begin with that letter.
        if (!isDigit(text.front()) && text.front() != '.' && text != "E" && !isExponentSign) {
            return false;
        }
        append(text);
        return true;
    }

    /// What is wrong with the number so far; empty when nothing is.
    std::string_view error() const {
        return m_points > 1 ? kTooManyDecimalPoints : m_exponentMarks > 1 ? kTooManyEs : std::string_view();
    }
    Node number() const { return Number::newNumberWithText(m_text); }

private:
    void append(std::string_view text) {
        m_lastWasE = text == "E";
        m_points += text.front() == '.' ? 1 : 0;
        m_exponentMarks += m_lastWasE ? 1 : 0;
        m_text += text;
    }

    std::string m_text;
    int m_points = 0;
    int m_exponentMarks = 0;
    bool m_lastWasE = false;
};

void logUnknown(const TokenElement& element) {
    log("failed to parse token " +
        (element.token() != nullptr ? element.token()->internalRepresentation() : element.toDisplayString()));
}

} // namespace

Leaves leavesOfTokens(std::span<const TokenElement> tokens, std::vector<std::size_t>* positions) {
    Leaves leaves;
    leaves.nodes.reserve(tokens.size());
    bool isOver = false; // a wrong number ends the parse, while every unknown token is to be logged
    for (std::size_t i = 0; i < tokens.size() && !isOver; ++i) {
        const TokenElement& element = tokens[i];
        const std::size_t position = i;
        Node node;
        if (startsNumber(element)) {
            NumberGatherer gatherer(*element.token());
            while (gatherer.error().empty() && i + 1 < tokens.size() && gatherer.accepts(tokens[i + 1])) {
                ++i;
            }
            if (!gatherer.error().empty()) {
                leaves.error = gatherer.error();
                leaves.errorPosition = std::min(leaves.errorPosition, i);
                isOver = true;
            }
            node = gatherer.number();
        } else if (isSingleCharacter(element, '-') &&
                   (leaves.nodes.empty() || !leaves.nodes.back()->canBeFollowedBySubtraction())) {
            node = std::make_unique<UnivarFunction>(UnivarType::Negation);
        } else if (const auto* expression = element.expression()) {
            node = nodeOfExpression(*expression);
        } else {
            node = Expression::newExpressionWithToken(element);
        }
        if (node == nullptr) {
            logUnknown(element);
            leaves.error = kUnableToParse;
            leaves.errorPosition = std::min(leaves.errorPosition, position);
            continue;
        }
        if (positions != nullptr) {
            positions->push_back(position);
        }
        leaves.nodes.push_back(std::move(node));
    }
    return leaves;
}

std::unique_ptr<Expression> Expression::newExpressionWithToken(const TokenElement& element) {
    if (const NamedExpression* named = element.namedExpression()) {
        return named->expression() != nullptr ? nodeOfExpression(named->expression())
                                              : nodeOfToken(Token(named->name()));
    }
    if (const Token* token = element.token()) {
        return nodeOfToken(*token);
    }
    Environment::current().raiseDebugAlert("Unexpected token type.");
    return nullptr;
}

std::unique_ptr<Expression> Expression::newExpressionWithString(std::string text) {
    const TokenElement element{Token(std::move(text))};
    return newExpressionWithTokens({&element, 1});
}

std::unique_ptr<Expression> Expression::newExpressionWithTokens(std::span<const TokenElement> tokens) {
    if (tokens.empty()) {
        return std::make_unique<EmptyExpression>();
    }
    Leaves leaves = leavesOfTokens(tokens);
    if (!leaves.error.empty()) {
        return std::make_unique<ErrorExpression>(leaves.error);
    }
    return newExpressionWithExpressions(std::move(leaves.nodes));
}

} // namespace velmora
