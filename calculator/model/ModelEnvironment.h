#pragma once

#include "engine/environment/Environment.h"

namespace velmora {

class Model;

/// What the engine reads of the model. Alerts are shown with the one button "OK".
class ModelEnvironment final : public Environment {
public:
    explicit ModelEnvironment(Model& model) : m_model(model) {}

    NumberStyle numberStyle() const override;
    double complexRoundingThreshold() const override;
    const ExpressionList* equations() const override;
    const NamedExpressionList* constants() const override;

protected:
    void showAlert(std::string_view text) override;

private:
    Model& m_model;
};

} // namespace velmora
