#include "engine/tree/SharedExpression.h"

#include "engine/tree/DependenceSearch.h"
#include "engine/tree/DescriptionWriter.h"
#include "engine/tree/Evaluation.h"

namespace velmora {

SharedExpression::SharedExpression(std::shared_ptr<const Expression> tree)
    : FunctionExpression(Kind::Shared), m_tree(std::move(tree)) {
    m_hasError = m_tree->hasError();
    m_isGraphable = m_tree->isGraphable();
    m_holdsRecursion = m_tree->holdsRecursion();
    m_height = static_cast<std::uint16_t>(m_tree->height() + 1);
    if (m_tree->isConstant()) {
        setConstant(m_tree->constant());
    }
}

ComplexValue SharedExpression::complexValue(ComplexEvaluation& evaluation) const {
    if (const ComplexValue* known = evaluation.shared.find(*m_tree)) {
        return *known;
    }
    if (!evaluation.budget.spend(kCostOfTree * m_tree->cost())) {
        return undefinedValue();
    }
    return evaluation.shared.keep(*m_tree, complexOf(*m_tree, evaluation));
}

const std::string* SharedExpression::findErrorText() const { return m_tree->errorText(); }

void SharedExpression::addReferences(References& references) const { references.addConstant(m_tree); }

void SharedExpression::describe(DescriptionWriter& writer) const {
    if (!writer.isFull()) {
        m_tree->describe(writer);
    }
}

} // namespace velmora
