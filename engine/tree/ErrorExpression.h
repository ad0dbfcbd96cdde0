#pragma once

#include "engine/tree/Expression.h"

#include <string>
#include <string_view>

namespace velmora {

/// What stands where a line, or a part of it, cannot be read: the message to show.
class ErrorExpression final : public Expression {
public:
    enum class Cause : unsigned char { Unreadable, Recursion };

    explicit ErrorExpression(std::string_view text, Cause cause = Cause::Unreadable);
    static std::unique_ptr<Expression> newErrorExpressionWithString(std::string_view text);

    const std::string& errorString() const { return m_errorString; }
    // In a line being parsed it stands for a constant that cannot be used: an operand like any constant, so
    // that a product with it is a product and keeps the message.
    bool canBeFollowedByImpliedMultiplication() const override { return true; }
    void describe(DescriptionWriter& writer) const override;

private:
    const std::string* findErrorText() const override { return &m_errorString; }

    std::string m_errorString;
};

} // namespace velmora
