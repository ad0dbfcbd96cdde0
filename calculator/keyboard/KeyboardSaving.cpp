// How the editing modes of the keyboard screen store what was typed.

#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/InequalityTokens.h"
#include "calculator/model/Model.h"
#include "engine/lines/ExpressionList.h"
#include "engine/tree/Expression.h"
#include "platform/machine/Alert.h"
#include "platform/text/Log.h"

#include <optional>

namespace velmora {

namespace {

/// True when the line can be read; otherwise its error is shown.
bool isReadable(const ExpressionWithTokenArray& line) {
    const auto tree = line.expression();
    const std::optional<std::string> error = tree ? tree->errorDescription() : std::nullopt;
    if (!error) {
        return true;
    }
    Alert alert;
    alert.message = *error;
    presentAlert(std::move(alert));
    return false;
}

} // namespace

void KeyboardViewController::saveInequality() {
    const auto* inequality = dynamic_cast<const InequalityTokens*>(m_displayModel.get());
    if (!isReadable(*m_displayModel)) {
        return;
    }
    std::vector<InequalityTokens>& inequalities = Model::m().inequalityArray();
    if (!inequality || m_enteringWhichEquation < 0 ||
        m_enteringWhichEquation >= static_cast<int>(inequalities.size())) {
        log("no inequality " + std::to_string(m_enteringWhichEquation) + " to store");
        return;
    }
    inequalities[static_cast<std::size_t>(m_enteringWhichEquation)] = *inequality;
    leaveScreen();
}

void KeyboardViewController::saveEquation() {
    if (!isReadable(*m_displayModel)) {
        return;
    }
    if (!m_target || m_enteringWhichEquation < 0) {
        log("no list to store the equation in");
        return;
    }
    if (m_target->setExpressionAtIndex(m_enteringWhichEquation, *m_displayModel, true)) {
        leaveScreen();
        return;
    }
    Alert alert;
    alert.title = "Recursion found.";
    alert.message = "Please avoid having the equation call itself, or another equation that calls it.";
    presentAlert(std::move(alert));
}

} // namespace velmora
