#pragma once

#include "engine/functions/BivarTable.h"
#include "engine/lines/TokenElement.h"
#include "engine/tree/FunctionExpression.h"

#include <memory>
#include <span>
#include <string_view>

namespace velmora {

/// An operator, a function of two inputs, or a comparison.
class BivarFunction final : public FunctionExpression {
public:
    /// An operation still waiting for its inputs, as the parser first makes it.
    explicit BivarFunction(BivarType function);
    BivarFunction(BivarType function, std::unique_ptr<Expression> input1, std::unique_ptr<Expression> input2);
    /// An operation on two lines of tokens, each parsed.
    BivarFunction(BivarType function, std::span<const TokenElement> tokens1,
                  std::span<const TokenElement> tokens2);

    /// Only the five one-character operators are known by their character.
    static BivarType functionTypeForUnichar(std::string_view character);
    static BivarType functionTypeWithAlphaString(std::string_view name);
    static BivarType functionTypeWithToken(std::string_view token) { return bivarTypeWithToken(token); }

    BivarType function() const { return m_type; }
    const Expression* input1() const { return m_input1.get(); }
    const Expression* input2() const { return m_input2.get(); }
    /// Give the operation its inputs; done by the parser.
    void setInputs(std::unique_ptr<Expression> input1, std::unique_ptr<Expression> input2);
    void setInput1(std::unique_ptr<Expression> input);
    void setInput2(std::unique_ptr<Expression> input);

    std::string_view operatorDescription() const { return row().name; }
    bool isInequality() const {
        return function() >= BivarType::GreaterOrEqual && function() <= BivarType::Less;
    }
    /// Written as a name with "(" and two arguments, or built directly as a comparison.
    bool isCommaExpectingBivarFunction() const {
        return function() >= BivarType::LogarithmToBase && function() <= BivarType::Less;
    }

    /// The real rule; NaN where there is none.
    double valueWithDouble(double a, double b) const;
    ComplexValue valueWithComplex(ComplexValue a, ComplexValue b) const;

    /// For a power whose exponent is written as a quotient, x^(b/c): the same power of the c-th root
    /// of x, which is what a user means by (-8)^(1/3); otherwise the node as it is. Goes by shape
    /// alone, so (-4)^(1/2) is undefined while (-4)^.5 is 2i; a minus before the quotient prevents it.
    static std::unique_ptr<Expression> checkForFractionalPower(std::unique_ptr<BivarFunction> power);

    bool canBePrecededByImpliedMultiplication() const override { return isCommaExpectingBivarFunction(); }
    bool canBeFollowedBySubtraction() const override { return m_input2 != nullptr; }
    bool needsToBePairedWithARightParen() const override {
        return isCommaExpectingBivarFunction() && m_input1 == nullptr;
    }

    ComplexValue complexValue(ComplexEvaluation& evaluation) const override;
    void describeToProgram(RealProgramBuilder& builder) const override;
    void addReferences(References& references) const override;
    void describe(DescriptionWriter& writer) const override;

private:
    const std::string* findErrorText() const override;
    void refreshTraits();

    const BivarRow& row() const { return bivarRow(m_type); }

    BivarType m_type;
    std::unique_ptr<Expression> m_input1; // both null until the parser finds the operands
    std::unique_ptr<Expression> m_input2;
};

} // namespace velmora
