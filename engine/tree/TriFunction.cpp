#include "engine/tree/TriFunction.h"

#include "engine/environment/Environment.h"
#include "engine/tree/DescriptionWriter.h"
#include "engine/tree/Evaluation.h"

#include <array>
#include <cmath>
#include <limits>

namespace velmora {

TriFunction::TriFunction(std::unique_ptr<const Expression> input1, std::unique_ptr<const Expression> input2,
                         std::unique_ptr<const Expression> input3)
    : FunctionExpression(Kind::ThreeInputs) {
    setInputs(std::move(input1), std::move(input2), std::move(input3));
}

void TriFunction::setInputs(std::unique_ptr<const Expression> input1,
                            std::unique_ptr<const Expression> input2,
                            std::unique_ptr<const Expression> input3) {
    m_input1 = std::move(input1);
    m_input2 = std::move(input2);
    m_input3 = std::move(input3);
    resetTraits();
    adoptTraits(m_input1.get());
    adoptTraits(m_input2.get());
    adoptTraits(m_input3.get());
}

ComplexValue TriFunction::complexValue(ComplexEvaluation& evaluation) const {
    if (!evaluation.variables.areGiven) {
        return undefinedValue();
    }
    const ComplexValue variable = evaluation.variables.byType[0];
    if (!isReal(variable)) {
        Environment::current().raiseOneShotAlert("In conditional, variable value must be real.");
        return undefinedValue();
    }
    const ComplexValue bound = complexOf(*m_input1, evaluation);
    if (!isReal(bound)) {
        Environment::current().raiseOneShotAlert("First input to conditional must be real.");
        return undefinedValue();
    }
    if (std::isnan(bound.real())) {
        return undefinedValue();
    }
    return complexOf(variable.real() <= bound.real() ? *m_input2 : *m_input3, evaluation);
}

const std::string* TriFunction::findErrorText() const {
    const std::string* text = nullptr;
    for (const Expression* input : {m_input1.get(), m_input2.get(), m_input3.get()}) {
        text = text != nullptr ? text : errorTextOfInput(input);
    }
    return text;
}

void TriFunction::addReferences(References& references) const {
    for (const Expression* input : {m_input1.get(), m_input2.get(), m_input3.get()}) {
        if (input != nullptr) {
            input->addReferences(references);
        }
    }
}

void TriFunction::describe(DescriptionWriter& writer) const {
    writer << kToken;
    for (const auto& [input, separator] :
         std::array{std::pair{m_input1.get(), ", "}, std::pair{m_input2.get(), ", "},
                    std::pair{m_input3.get(), ")"}}) {
        if (input != nullptr) {
            input->describe(writer);
        }
        writer << separator;
    }
}

} // namespace velmora
