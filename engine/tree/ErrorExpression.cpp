#include "engine/tree/ErrorExpression.h"

#include "engine/tree/DescriptionWriter.h"

namespace velmora {

ErrorExpression::ErrorExpression(std::string_view text, Cause cause) : m_errorString(text) {
    m_hasError = true;
    m_isGraphable = false;
    m_holdsRecursion = cause == Cause::Recursion;
}

std::unique_ptr<Expression> ErrorExpression::newErrorExpressionWithString(std::string_view text) {
    return std::make_unique<ErrorExpression>(text);
}

void ErrorExpression::describe(DescriptionWriter& writer) const { writer << m_errorString; }

} // namespace velmora
