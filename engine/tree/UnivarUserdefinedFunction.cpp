#include "engine/tree/UnivarUserdefinedFunction.h"

#include "engine/lines/ExpressionList.h"
#include "engine/tree/DependenceSearch.h"
#include "engine/tree/Evaluation.h"
#include "engine/tree/RealProgram.h"

namespace velmora {

namespace {

ComplexValue valueOfEquation(const Expression* equation, ComplexValue z, EvaluationBudget& budget) {
    if (equation == nullptr || !budget.enter(*equation)) {
        return undefinedValue();
    }
    const ComplexValue value = evaluateAt(*equation, z, budget);
    budget.leave(*equation);
    return value;
}

} // namespace

UnivarUserdefinedFunction::UnivarUserdefinedFunction(Token token)
    : UnivarFunction(UnivarType::UserDefined), m_token(std::move(token)),
      m_target(TargetAndIndex::newTargetAndIndexWithToken(m_token.internalRepresentation())
                   .value_or(TargetAndIndex{nullptr, -1})) {}

UnivarUserdefinedFunction::UnivarUserdefinedFunction(Token token, std::unique_ptr<const Expression> input)
    : UnivarUserdefinedFunction(std::move(token)) {
    setInput(std::move(input));
}

std::shared_ptr<const Expression> UnivarUserdefinedFunction::equation() const {
    return m_target.target != nullptr ? m_target.target->expression(m_target.intIndex) : nullptr;
}

ComplexValue UnivarUserdefinedFunction::valueWithComplex(ComplexValue z) const {
    EvaluationBudget budget;
    return budget.settled(valueOfEquation(equation().get(), z, budget));
}

ComplexValue UnivarUserdefinedFunction::complexValue(ComplexEvaluation& evaluation) const {
    return valueOfEquation(equation().get(), complexOf(*input(), evaluation), evaluation.budget);
}

void UnivarUserdefinedFunction::describeToProgram(RealProgramBuilder& builder) const {
    // The equation may change while this line stays, so it has no steps here but a program of its own.
    builder.appendOtherNode(*this);
}

void UnivarUserdefinedFunction::addReferences(References& references) const {
    references.addEquation(equation());
    UnivarFunction::addReferences(references);
}

} // namespace velmora
