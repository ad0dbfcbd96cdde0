#pragma once

#include "engine/lines/Token.h"
#include "engine/tree/TargetAndIndex.h"
#include "engine/tree/UnivarFunction.h"

#include <memory>
#include <string>

namespace velmora {

/// A call of one of the user's equations, such as "y2(". The token is resolved to a list and a slot
/// when the node is made; the slot's tree is looked up at every evaluation. A slot without an
/// expression gives NaN.
class UnivarUserdefinedFunction final : public UnivarFunction {
public:
    explicit UnivarUserdefinedFunction(Token token);
    UnivarUserdefinedFunction(Token token, std::unique_ptr<const Expression> input);

    const Token& token() const { return m_token; }
    const ExpressionList* targetFromModel() const { return m_target.target; }
    int intIndex() const { return m_target.intIndex; }
    /// The tree of the equation called, as it is now; null where there is none.
    std::shared_ptr<const Expression> equation() const;

    std::string functionDescription() const override { return m_token.internalRepresentation(); }
    ComplexValue valueWithComplex(ComplexValue z) const override;

    ComplexValue complexValue(ComplexEvaluation& evaluation) const override;
    void describeToProgram(RealProgramBuilder& builder) const override;
    void addReferences(References& references) const override;

private:
    Token m_token;
    TargetAndIndex m_target;
};

} // namespace velmora
