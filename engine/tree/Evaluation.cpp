#include "engine/tree/Evaluation.h"

#include "engine/tree/FunctionExpression.h"

namespace velmora {

namespace {

// Both out of line, for the curves of a graph rarely come here.
[[gnu::noinline]] ComplexValue evaluateTree(const Expression& tree, const VariableValues& variables,
                                            EvaluationBudget& budget) {
    if (!budget.spend(kCostOfTree * tree.cost())) {
        return undefinedValue();
    }
    GeneralEvaluation general(variables, budget);
    return complexOf(tree, general.evaluation);
}

[[gnu::noinline]] ComplexValue evaluateTreeAt(const Expression& tree, ComplexValue z,
                                              EvaluationBudget& budget) {
    return evaluateTree(tree, {.byType = {z, z, z}}, budget);
}

} // namespace

ComplexValue evaluate(const Expression& tree, const VariableValues& variables, EvaluationBudget& budget) {
    const auto& [x, y, none] = variables.byType;
    // A value without variables is asked for once a line, which a program would not be worth.
    if (tree.isFunction() && variables.areGiven && isReal(x) && isReal(y)) {
        if (!budget.spend(tree.cost())) {
            return undefinedValue();
        }
        RealProgram::Run run(x.real(), y.real(), none.real(), variables.areTwo, budget);
        const double value = static_cast<const FunctionExpression&>(tree).realProgram().value(run);
        if (!run.leftReals) {
            return {value, 0.0};
        }
    }
    return evaluateTree(tree, variables, budget);
}

ComplexValue evaluateAt(const Expression& tree, ComplexValue z, EvaluationBudget& budget) {
    return isReal(z) ? evaluateAtReal(tree, z.real(), budget) : evaluateTreeAt(tree, z, budget);
}

// Out of line: merged into the above, GCC joins both parts of z in memory to read one of them back, and the
// wait for that costs more than most curves.
[[gnu::noinline]] ComplexValue evaluateAtReal(const Expression& tree, double x, EvaluationBudget& budget) {
    if (!tree.isFunction()) {
        return evaluateTreeAt(tree, x, budget);
    }
    if (!budget.spend(tree.cost())) {
        return undefinedValue();
    }
    RealProgram::Run run(x, x, x, false, budget);
    const double value = static_cast<const FunctionExpression&>(tree).realProgram().value(run);
    return run.leftReals ? evaluateTreeAt(tree, x, budget) : ComplexValue(value, 0.0);
}

} // namespace velmora
