#include "engine/lines/NamedExpression.h"

#include "engine/tree/Expression.h"
#include "engine/tree/Number.h"
#include "platform/files/KeyedArchive.h"

namespace velmora {

NamedExpression::NamedExpression(const TokenArray& tokens, std::string name)
    : m_name(std::move(name)), m_expression(Expression::newExpressionWithTokens(tokens)) {}

void NamedExpression::encodeWithCoder(KeyedArchiver& coder) const {
    if (const auto number = std::dynamic_pointer_cast<const Number>(m_expression)) {
        KeyedArchiver numberCoder;
        number->encodeWithCoder(numberCoder);
        coder.encode("ExpressionExpression", numberCoder.propertyList());
    }
    coder.encode("ExpressionName", m_name);
}

NamedExpression NamedExpression::decode(const KeyedUnarchiver& coder) {
    NamedExpression named;
    named.m_name = coder.text("ExpressionName").value_or("");
    if (const PropertyList* number = coder.value("ExpressionExpression")) {
        named.m_expression = Number::decode(KeyedUnarchiver(*number));
    }
    return named;
}

} // namespace velmora
