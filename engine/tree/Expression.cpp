#include "engine/tree/Expression.h"

#include "engine/display/NumberDisplay.h"
#include "engine/numbers/Complex.h"
#include "engine/tree/DependenceSearch.h"
#include "engine/tree/DescriptionWriter.h"
#include "engine/tree/ErrorExpression.h"
#include "engine/tree/ErrorTexts.h"
#include "engine/tree/Evaluation.h"
#include "engine/tree/RealProgram.h"

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

constexpr std::uint32_t kMaximumTreeCost = std::numeric_limits<std::uint32_t>::max() / 4;

const ComplexValue kNoValue{std::numeric_limits<double>::quiet_NaN(),
                            std::numeric_limits<double>::quiet_NaN()};

} // namespace

ComplexValue Expression::value() const {
    const ComplexValue none = undefinedValue();
    EvaluationBudget budget;
    return budget.settled(evaluate(*this, {.byType = {none, none, none}, .areGiven = false}, budget));
}

ComplexValue Expression::valueWithVariableValue(ComplexValue z) const {
    EvaluationBudget budget;
    return budget.settled(evaluateAt(*this, z, budget));
}

ComplexValue Expression::valueWithVariableValues(ComplexValue x, ComplexValue y) const {
    EvaluationBudget budget;
    return budget.settled(evaluate(*this, {.byType = {x, y, undefinedValue()}, .areTwo = true}, budget));
}

double Expression::roundedRealValueWithVariableValue(ComplexValue z) const {
    const ComplexValue value = valueWithVariableValue(z);
    return isAlmostReal(value) ? value.real() : std::numeric_limits<double>::quiet_NaN();
}

void Expression::describeToProgram(RealProgramBuilder& builder) const { builder.appendOtherNode(*this); }

ComplexValue Expression::complexValue(ComplexEvaluation& evaluation) const {
    // What has no value at all answers a question about two variables with both parts undefined.
    return evaluation.variables.areTwo ? kNoValue : undefinedValue();
}

std::string Expression::formattedValueOrErrorDescription() const { return formattedValue(value()); }

std::string Expression::formattedValue(ComplexValue value) const {
    if (isReal(value)) {
        if (std::isnan(value.real())) {
            return errorDescription().value_or(std::string(kUndefined));
        }
        return displayStringWithDouble(value.real());
    }
    if (isNaN(value)) {
        return displayStringWithComplex(value);
    }
    return Complex(value).roundedDescription();
}

std::optional<std::string> Expression::errorDescription() const {
    if (const std::string* error = errorText()) {
        return *error;
    }
    return DependenceSearch(*this).isTooHigh() ? std::optional(unableToParseText()) : std::nullopt;
}

void Expression::addReferences(References&) const {}

bool Expression::dependsOnExpression(const Expression& other) const {
    return DependenceSearch(*this).leadsTo(other);
}

bool Expression::hasRecursion() const { return DependenceSearch(*this).hasFoundCircle(); }

std::string Expression::description() const {
    DescriptionWriter writer;
    describe(writer);
    return std::move(writer).text();
}

void Expression::adoptTraits(const Expression* input) {
    const bool isUsable = input != nullptr && !input->isMark();
    if (input != nullptr) {
        m_height = static_cast<std::uint16_t>(std::max<int>(m_height, input->m_height + 1));
        m_cost = std::min(m_cost + input->m_cost, kMaximumTreeCost);
        m_holdsRecursion = m_holdsRecursion || input->m_holdsRecursion;
    }
    m_isGraphable = m_isGraphable && isUsable && input->m_isGraphable;
    m_hasError = m_hasError || !isUsable || input->m_hasError;
    if (!isUsable) {
        setConstant(undefinedValue()); // so no evaluation ever meets the gap
    }
}

const std::string* Expression::findErrorText() const { return nullptr; }

const std::string* Expression::errorTextOfInput(const Expression* input) {
    return input == nullptr || input->isMark() ? &unableToParseText() : input->errorText();
}

void Expression::resetTraits(std::uint32_t ownCost) {
    m_hasError = false;
    m_height = 1;
    m_cost = ownCost;
    m_leaf = Leaf::None;
    m_isGraphable = true;
    m_holdsRecursion = false;
}

void Expression::setConstant(ComplexValue value) {
    m_constant = value;
    m_leaf = isReal(value) ? Leaf::RealConstant : Leaf::ComplexConstant;
}

} // namespace velmora
