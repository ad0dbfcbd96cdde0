#include "calculator/model/ModelEnvironment.h"

#include "calculator/model/Model.h"
#include "platform/machine/Alert.h"

namespace velmora {

NumberStyle ModelEnvironment::numberStyle() const {
    return {.displayDigits = m_model.displayDigits(),
            .trailingZeroes = m_model.trailingZeroes(),
            .maxDigitsForDecimal = m_model.maxDigitsForDecimalNotation(),
            .commas = m_model.commasInNumbers()};
}

double ModelEnvironment::complexRoundingThreshold() const { return m_model.complexRoundingThreshold(); }

const ExpressionList* ModelEnvironment::equations() const { return &m_model.equations(); }

const NamedExpressionList* ModelEnvironment::constants() const { return &m_model.constants(); }

void ModelEnvironment::showAlert(std::string_view text) {
    Alert alert;
    alert.message = text;
    presentAlert(std::move(alert));
}

} // namespace velmora
