// What is put into the line: texts of keys, choices that come back from other screens, taps on the history.

#include "calculator/history/DisplayHistoryTableViewController.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "engine/tree/Number.h"
#include "platform/files/KeyedArchive.h"

#include <array>

namespace velmora {

namespace {

/// Operators that continue the last answer on an empty line. "-" is missing on purpose, so that a line may
/// begin with a negative number; "_" is on no key of the present layouts.
constexpr std::array<std::string_view, 5> kContinuesLastAnswer{"+", "_", "*", "/", "^"};

bool continuesLastAnswer(const std::string& text) {
    for (const std::string_view start : kContinuesLastAnswer) {
        if (text == start) {
            return true;
        }
    }
    return false;
}

} // namespace

void KeyboardViewController::buttonPressedWithText(const std::string& text) {
    if (m_displayModel && !text.empty() && !continueTypedName(text)) {
        insertText(text);
    }
}

void KeyboardViewController::insertText(const std::string& text) {
    if (!m_displayModel || text.empty()) {
        return;
    }
    if (m_displayModel->count() == 0 && continuesLastAnswer(text)) {
        insertANS();
    }
    if (text.find_first_not_of(',') == std::string::npos) {
        // No function leads these commas, so each is a token typed by itself.
        for (std::size_t i = 0; i < text.size(); ++i) {
            insertElement(Token(","));
        }
        return;
    }
    m_displayModel->insertTokenArray(Token::tokenArrayWithString(text));
}

void KeyboardViewController::insertElement(TokenElement token) {
    if (m_displayModel) {
        m_displayModel->insertToken(std::move(token));
    }
}

void KeyboardViewController::insertANS() {
    if (m_entering != kEnteringCalculatorLine) {
        return;
    }
    const ExpressionList& history = Model::m().history();
    const ExpressionWithTokenArray* last = history.entryAtIndex(history.nExpressions() - 1);
    const ComplexValue answer = last ? last->resultValue() : ComplexValue(0);
    insertElement(NamedExpression(std::make_shared<Number>(answer), "ans"));
    updateDisplay();
}

// Nothing that was chosen on another screen is lost, nor are letters that wait in the line: those that spell
// no name yet go on waiting behind it, with a notice.

void KeyboardViewController::functionSelected(const std::string& text) {
    finishTypedName();
    endPressCounts();
    insertText(text);
    updateDisplay();
}

void KeyboardViewController::namedExpressionSelected(TokenElement token) {
    finishTypedName();
    endPressCounts();
    insertElement(std::move(token));
    updateDisplay();
}

void KeyboardViewController::numberEntered(ComplexValue value) {
    finishTypedName();
    endPressCounts();
    insertElement(std::shared_ptr<const Expression>(std::make_shared<Number>(value)));
    updateDisplay();
}

void KeyboardViewController::displayTableViewButtonPressed(const Notification& notification) {
    const KeyedUnarchiver info(notification.userInfo);
    const auto row = info.integer("row");
    if (!row || !finishTypedName()) {
        return;
    }
    endPressCounts();
    const int index = static_cast<int>(*row) - m_table->nTipCells();
    if (const ExpressionWithTokenArray* entry = Model::m().history().entryAtIndex(index)) {
        if (info.boolean("left").value_or(false)) {
            const TokenArray tokens = entry->tokenArray();
            for (const TokenElement& token : tokens) {
                insertElement(token);
            }
        } else {
            numberEntered(entry->resultValue());
        }
    }
    updateDisplay();
}

} // namespace velmora
