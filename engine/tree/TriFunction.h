#pragma once

#include "engine/tree/FunctionExpression.h"

#include <memory>
#include <string_view>

namespace velmora {

/// "conditional(bound, a, b)": a while the variable is at most the bound, else b.
/// Undefined without a variable; of two variables it looks at the first.
class TriFunction final : public FunctionExpression {
public:
    TriFunction() : FunctionExpression(Kind::ThreeInputs) { adoptTraits(nullptr); }
    TriFunction(std::unique_ptr<const Expression> input1, std::unique_ptr<const Expression> input2,
                std::unique_ptr<const Expression> input3);

    static constexpr std::string_view kToken = "conditional(";
    static bool acceptsToken(std::string_view token) { return token == kToken; }

    const Expression* input1() const { return m_input1.get(); }
    const Expression* input2() const { return m_input2.get(); }
    const Expression* input3() const { return m_input3.get(); }
    /// Gives the conditional its inputs; done once, by the parser.
    void setInputs(std::unique_ptr<const Expression> input1, std::unique_ptr<const Expression> input2,
                   std::unique_ptr<const Expression> input3);

    // A "-" right after "conditional(" stays a subtraction, as intended, so
    // canBeFollowedBySubtraction() keeps its answer.
    bool needsToBePairedWithARightParen() const override { return m_input1 == nullptr; }

    ComplexValue complexValue(ComplexEvaluation& evaluation) const override;
    void addReferences(References& references) const override;
    void describe(DescriptionWriter& writer) const override;

private:
    const std::string* findErrorText() const override;
    std::unique_ptr<const Expression> m_input1; // all null until the parser pairs the brackets
    std::unique_ptr<const Expression> m_input2;
    std::unique_ptr<const Expression> m_input3;
};

} // namespace velmora
