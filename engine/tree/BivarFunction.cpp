#include "engine/tree/BivarFunction.h"

#include "engine/environment/Environment.h"
#include "engine/tree/DescriptionWriter.h"
#include "engine/tree/Evaluation.h"
#include "engine/tree/RealProgram.h"

#include <limits>

namespace velmora {

namespace {

bool isReal(const BivarRow& row, double a, double b) {
    return row.real != nullptr && (row.inRealDomain == nullptr || row.inRealDomain(a, b));
}

} // namespace

BivarFunction::BivarFunction(BivarType function) : FunctionExpression(Kind::TwoInputs), m_type(function) {
    refreshTraits();
}

BivarFunction::BivarFunction(BivarType function, std::unique_ptr<Expression> input1,
                             std::unique_ptr<Expression> input2)
    : FunctionExpression(Kind::TwoInputs), m_type(function) {
    setInputs(std::move(input1), std::move(input2));
}

BivarFunction::BivarFunction(BivarType function, std::span<const TokenElement> tokens1,
                             std::span<const TokenElement> tokens2)
    : BivarFunction(function, newExpressionWithTokens(tokens1), newExpressionWithTokens(tokens2)) {}

BivarType BivarFunction::functionTypeForUnichar(std::string_view character) {
    return character.size() == 1 ? bivarTypeWithToken(character) : BivarType::NoOperator;
}

BivarType BivarFunction::functionTypeWithAlphaString(std::string_view name) {
    return name.size() == 1 ? BivarType::NoOperator : bivarTypeWithToken(name);
}

void BivarFunction::setInputs(std::unique_ptr<Expression> input1, std::unique_ptr<Expression> input2) {
    m_input1 = std::move(input1);
    m_input2 = std::move(input2);
    refreshTraits();
}

void BivarFunction::setInput1(std::unique_ptr<Expression> input) {
    m_input1 = std::move(input);
    refreshTraits();
}

void BivarFunction::setInput2(std::unique_ptr<Expression> input) {
    m_input2 = std::move(input);
    refreshTraits();
}

void BivarFunction::refreshTraits() {
    resetTraits(row().cost);
    adoptTraits(m_input1.get());
    adoptTraits(m_input2.get());
    if (m_type == BivarType::NoOperator) {
        setConstant(undefinedValue());
    }
    if (isConstant() || !m_input1->isConstant() || !m_input2->isConstant()) {
        return;
    }
    const ComplexValue a = m_input1->constant();
    const ComplexValue b = m_input2->constant();
    if (row().complexMessage.empty() || (velmora::isReal(a) && velmora::isReal(b))) {
        setConstant(valueWithComplex(a, b));
    }
}

double BivarFunction::valueWithDouble(double a, double b) const {
    if (row().real == nullptr && m_type != BivarType::BesselJ && m_type != BivarType::BesselY) {
        Environment::current().raiseDebugAlert("Unexpected function type.");
        Environment::current().raiseDebugAlert("problem in method valueWithDouble andDouble");
    }
    return isReal(row(), a, b) ? row().real(a, b) : std::numeric_limits<double>::quiet_NaN();
}

ComplexValue BivarFunction::valueWithComplex(ComplexValue a, ComplexValue b) const {
    if (velmora::isReal(a) && velmora::isReal(b)) {
        if (isReal(row(), a.real(), b.real())) {
            return {row().real(a.real(), b.real()), 0.0};
        }
    } else if (isNaN(a) || isNaN(b)) {
        return undefinedValue();
    }
    if (row().complex != nullptr) {
        return row().complex(a, b);
    }
    if (!row().complexMessage.empty()) {
        Environment::current().raiseOneShotAlert(row().complexMessage);
    }
    return undefinedValue();
}

std::unique_ptr<Expression> BivarFunction::checkForFractionalPower(std::unique_ptr<BivarFunction> power) {
    if (power->m_input2 == nullptr || power->m_input2->kind() != Kind::TwoInputs) {
        return power;
    }
    auto* quotient = static_cast<BivarFunction*>(power->m_input2.get());
    if (power->m_type != BivarType::Power || quotient->m_type != BivarType::Divide) {
        return power;
    }
    auto root = std::make_unique<BivarFunction>(BivarType::NthRoot, std::move(quotient->m_input2),
                                                std::move(power->m_input1));
    return std::make_unique<BivarFunction>(BivarType::Power, std::move(root), std::move(quotient->m_input1));
}

ComplexValue BivarFunction::complexValue(ComplexEvaluation& evaluation) const {
    const ComplexValue a = complexOf(*m_input1, evaluation);
    const ComplexValue b = complexOf(*m_input2, evaluation);
    if (row().realSteps != nullptr && !evaluation.budget.spend(row().realSteps(a.real(), b.real()))) {
        return undefinedValue();
    }
    return valueWithComplex(a, b);
}

void BivarFunction::describeToProgram(RealProgramBuilder& builder) const {
    if (m_type == BivarType::NthRoot && builder.appendRoot(*m_input1, *m_input2)) {
        return;
    }
    builder.append(*m_input1);
    builder.appendOperation(m_type, row(), *m_input2);
}

const std::string* BivarFunction::findErrorText() const {
    const std::string* first = errorTextOfInput(m_input1.get());
    return first != nullptr ? first : errorTextOfInput(m_input2.get());
}

void BivarFunction::addReferences(References& references) const {
    for (const Expression* input : {m_input1.get(), m_input2.get()}) {
        if (input != nullptr) {
            input->addReferences(references);
        }
    }
}

void BivarFunction::describe(DescriptionWriter& writer) const {
    writer << "(";
    if (m_input1 != nullptr) {
        m_input1->describe(writer);
    }
    writer << ")" << operatorDescription() << "(";
    if (m_input2 != nullptr) {
        m_input2->describe(writer);
    }
    writer << ")";
}

} // namespace velmora
