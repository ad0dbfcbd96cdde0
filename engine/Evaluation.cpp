#include "engine/Evaluation.h"

#include "engine/RealProgram.h"

namespace velmora {

namespace {

// Out of line, for the curves of a graph rarely come here.
[[gnu::noinline]] ComplexValue evaluateTree(const Expression& tree, const VariableValues& variables,
                                            EvaluationBudget& budget) {
    if (budget.isSpent()) {
        return undefinedValue();
    }
    ComplexEvaluation evaluation{.variables = variables, .budget = budget, .shared = {}};
    return complexOf(tree, evaluation);
}

[[gnu::noinline]] ComplexValue evaluateTreeAt(const Expression& tree, ComplexValue z,
                                              EvaluationBudget& budget) {
    return evaluateTree(tree, {.byType = {z, z, z}}, budget);
}

} // namespace

ComplexValue evaluate(const Expression& tree, const VariableValues& variables, EvaluationBudget& budget) {
    const auto& [x, y, none] = variables.byType;
    // A value without variables is asked for once a line, which a program would not be worth.
    if (variables.areGiven && isReal(x) && isReal(y)) {
        RealProgram::Run run(x.real(), y.real(), none.real(), variables.areTwo, budget);
        const double value = tree.realProgram().value(run);
        if (!run.leftReals) {
            return {value, 0.0};
        }
    }
    return evaluateTree(tree, variables, budget);
}

ComplexValue evaluateAt(const Expression& tree, ComplexValue z, EvaluationBudget& budget) {
    if (isReal(z)) {
        RealProgram::Run run(z.real(), z.real(), z.real(), false, budget);
        const double value = tree.realProgram().value(run);
        if (!run.leftReals) {
            return {value, 0.0};
        }
    }
    return evaluateTreeAt(tree, z, budget);
}

} // namespace velmora
