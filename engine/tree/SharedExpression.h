#pragma once

#include "engine/tree/FunctionExpression.h"

#include <memory>

namespace velmora {

/// A finished tree that several lines share, standing in a line as one operand: a user's constant, or
/// an expression placed in the line as it is. However its tree is built, products are implied on both
/// sides of it and powers take its whole value.
class SharedExpression final : public FunctionExpression {
public:
    explicit SharedExpression(std::shared_ptr<const Expression> tree);

    const Expression& tree() const { return *m_tree; }
    bool canBeFollowedByImpliedMultiplication() const override { return true; }
    std::string formattedValue(ComplexValue value) const override { return m_tree->formattedValue(value); }

    ComplexValue complexValue(ComplexEvaluation& evaluation) const override;
    void addReferences(References& references) const override;
    void describe(DescriptionWriter& writer) const override;

private:
    const std::string* findErrorText() const override;
    std::shared_ptr<const Expression> m_tree;
};

} // namespace velmora
