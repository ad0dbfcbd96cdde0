#pragma once

#include "engine/tree/EvaluationBudget.h"
#include "engine/tree/Expression.h"

#include <array>
#include <utility>
#include <vector>

namespace velmora {

/// The nodes of a tree evaluate themselves several times slower than the steps of its program, and complex
/// functions are slower than real ones.
inline constexpr std::int64_t kCostOfTree = 8;

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
    GeneralEvaluation(const VariableValues& values, EvaluationBudget& budget)
        : variables(values), evaluation{.variables = variables, .budget = budget, .shared = {}} {}
    GeneralEvaluation(const GeneralEvaluation&) = delete;
    GeneralEvaluation& operator=(const GeneralEvaluation&) = delete;

    VariableValues variables;
    ComplexEvaluation evaluation;
};

/// The value of a tree for these variables: real if it can be, else complex. The cost of the tree is taken
/// from the budget; NaN when it does not suffice.
ComplexValue evaluate(const Expression& tree, const VariableValues& variables, EvaluationBudget& budget);
/// The same with every variable at z, as a curve asks for it.
ComplexValue evaluateAt(const Expression& tree, ComplexValue z, EvaluationBudget& budget);
ComplexValue evaluateAtReal(const Expression& tree, double x, EvaluationBudget& budget);

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
