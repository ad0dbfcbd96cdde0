#pragma once

#include "engine/functions/UnivarTable.h"
#include "engine/tree/FunctionExpression.h"

#include <memory>
#include <string>
#include <string_view>

namespace velmora {

class Token;

/// The real rule of a row at a, which must lie in its real domain. Angles follow the angle mode.
double univarRealRule(const UnivarRow& row, double a);

/// A function of one input, such as "sin(" or "sqrt(", or a negation.
class UnivarFunction : public FunctionExpression {
public:
    /// A function still waiting for its input, as the parser first makes it.
    explicit UnivarFunction(UnivarType function);
    UnivarFunction(UnivarType function, std::unique_ptr<const Expression> input);

    /// The type that a token selects, user functions included; NoFunction when none.
    static UnivarType functionTypeWithToken(std::string_view token);
    /// The node of a token, with or without its input; null when the token names no function.
    static std::unique_ptr<UnivarFunction>
    newFunctionWithToken(const Token& token, std::unique_ptr<const Expression> input = nullptr);

    UnivarType function() const { return m_row->type; }
    const Expression* input() const { return m_input.get(); }
    /// Gives the function its input; done once, by the parser.
    void setInput(std::unique_ptr<const Expression> input);

    /// The name by which descriptions call the function.
    virtual std::string functionDescription() const;
    /// The real rule; NaN where there is none. Angles follow the angle mode.
    double valueWithDouble(double a) const;
    virtual ComplexValue valueWithComplex(ComplexValue z) const;
    ComplexValue valueWithExpression(const Expression& input) const {
        return valueWithComplex(input.value());
    }

    bool canBeFollowedBySubtraction() const override { return m_input != nullptr; }
    bool needsToBePairedWithARightParen() const override {
        return function() != UnivarType::Negation && m_input == nullptr;
    }
    std::string formattedValue(ComplexValue value) const override;

    ComplexValue complexValue(ComplexEvaluation& evaluation) const override;
    void describeToProgram(RealProgramBuilder& builder) const override;
    void addReferences(References& references) const override;
    void describe(DescriptionWriter& writer) const override;

private:
    const std::string* findErrorText() const override;
    void foldConstantInput();

    const UnivarRow* m_row;
    std::unique_ptr<const Expression> m_input; // null until the parser pairs the brackets
};

} // namespace velmora
