#include "calculator/keyboard/LineStoring.h"

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

bool storeInequality(const ExpressionWithTokenArray& line, int slot) {
    const auto* inequality = dynamic_cast<const InequalityTokens*>(&line);
    if (!isReadable(line)) {
        return false;
    }
    std::vector<InequalityTokens>& inequalities = Model::m().inequalityArray();
    if (!inequality || slot < 0 || slot >= static_cast<int>(inequalities.size())) {
        log("no inequality " + std::to_string(slot) + " to store");
        return false;
    }
    inequalities[static_cast<std::size_t>(slot)] = *inequality;
    return true;
}

bool storeEquation(const ExpressionWithTokenArray& line, ExpressionList* target, int slot) {
    if (!isReadable(line)) {
        return false;
    }
    if (!target || slot < 0) {
        log("no list to store the equation in");
        return false;
    }
    if (target->setExpressionAtIndex(slot, line, true)) {
        return true;
    }
    Alert alert;
    alert.title = "Recursion found.";
    alert.message = "Please avoid having the equation call itself, or another equation that calls it.";
    presentAlert(std::move(alert));
    return false;
}

void appendToHistory(const ExpressionWithTokenArray& line) {
    ExpressionList& history = Model::m().history();
    history.addExpressionTokenArray(line.tokenArray());
    if (ExpressionWithTokenArray* row = history.entryAtIndex(history.nExpressions() - 1)) {
        row->keepResult();
    }
}

} // namespace velmora
