#pragma once

#include "engine/tree/Expression.h"

#include <array>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace velmora {

/// What one evaluation may still spend. Circles among equations that a file brought in, and equations
/// that call one another many times over, end as NaN instead of never.
struct EvaluationBudget {
    std::int64_t visits = Expression::kMaximumVisits;
    std::int64_t height = Expression::kMaximumHeight; ///< of the equations entered one inside the other
    int calls = 500;                                  ///< equations entered one inside the other

    bool isSpent() const { return visits < 0; }
    /// Accounts for walking a tree; false when that is too much, and then for all later trees.
    bool visit(const Expression& tree) {
        visits -= tree.size();
        return !isSpent();
    }
    /// Accounts for calling an equation, which adds to the stack what the caller's own height does not count.
    bool call(const Expression& equation) {
        height -= equation.height();
        --calls;
        if (height < 0 || calls < 0) {
            visits = -1;
        }
        return visit(equation);
    }
    void returnFrom(const Expression& equation) {
        height += equation.height();
        ++calls;
    }
};

/// The values of shared trees within one evaluation, so that constants naming constants twice cost
/// their number, not its power of two.
class SharedValues {
public:
    const ComplexValue* find(const Expression& tree) const {
        for (const auto& [known, value] : m_values) {
            if (known == &tree) {
                return &value;
            }
        }
        return nullptr;
    }
    ComplexValue keep(const Expression& tree, ComplexValue value) {
        m_values.emplace_back(&tree, value);
        return value;
    }

private:
    std::vector<std::pair<const Expression*, ComplexValue>> m_values;
};

/// The values of the variables by variable type.
struct VariableValues {
    std::array<ComplexValue, 3> byType;
    bool areGiven = true; ///< false when a value without variables was asked for
    bool areTwo = false;  ///< the independent variable and "y" were given apart
};

/// An evaluation of the tree itself, real or complex.
struct ComplexEvaluation {
    const VariableValues& variables;
    EvaluationBudget& budget;
    SharedValues shared;
};

/// The same together with the variables it stands for.
struct GeneralEvaluation {
    /// Without a budget to draw on it has one of its own.
    GeneralEvaluation(const VariableValues& values, EvaluationBudget* budget)
        : variables(values), evaluation{.variables = variables,
                                        .budget = budget != nullptr ? *budget : ownBudget,
                                        .shared = {}} {}
    GeneralEvaluation(const GeneralEvaluation&) = delete;
    GeneralEvaluation& operator=(const GeneralEvaluation&) = delete;

    VariableValues variables;
    EvaluationBudget ownBudget;
    ComplexEvaluation evaluation;
};

/// The value of a tree for these variables: real if it can be, else complex. The budget is that of the
/// evaluation this one is part of, or null.
ComplexValue evaluate(const Expression& tree, const VariableValues& variables, EvaluationBudget* budget);
/// The same with every variable at z, as a curve asks for it.
ComplexValue evaluateAt(const Expression& tree, ComplexValue z, EvaluationBudget* budget);
ComplexValue evaluateAtReal(const Expression& tree, double x, EvaluationBudget* budget);

/// The value of a node within an evaluation. Leaves are read in line, for most nodes of a line are leaves.
inline ComplexValue complexOf(const Expression& node, ComplexEvaluation& evaluation) {
    if (node.isConstant()) {
        return node.constant();
    }
    if (node.leaf() == Expression::Leaf::Variable) {
        return evaluation.variables.byType[node.variableIndex()];
    }
    return node.complexValue(evaluation);
}

} // namespace velmora
