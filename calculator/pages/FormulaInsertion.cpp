#include "calculator/pages/FormulaInsertion.h"

#include "calculator/keyboard/CalculatorOfScreen.h"
#include "calculator/keyboard/KeyboardViewController.h"
#include "calculator/model/Model.h"
#include "calculator/pages/FormulaText.h"
#include "engine/tree/Expression.h"
#include "platform/machine/Alert.h"
#include "platform/screens/NavigationController.h"
#include "toolkit/OrvTextSettingsCell.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

/// Variables of some lines: in a line that lacks them they may stand, without a value.
constexpr std::array<std::string_view, 4> kVariables{"x", "y", "t", "θ"};

void showAlert(std::string message) {
    Alert alert;
    alert.message = std::move(message);
    presentAlert(std::move(alert));
}

/// In brackets behind or before other things, so that the expression stays one operand.
void insertTokens(KeyboardViewController& keyboard, TokenArray tokens) {
    keyboard.edit([&](LineEditor& editor) {
        const std::string reason = editor.finishName();
        if (!editor.isEmpty()) {
            tokens.insert(tokens.begin(), Token("("));
            tokens.emplace_back(Token(")"));
        }
        editor.insertElements(std::move(tokens));
        return reason;
    });
}

/// False, with nothing inserted, for what does not parse.
bool insertIfItParses(const std::optional<TokenArray>& tokens, NavigationController* stack) {
    const auto tree = tokens ? Expression::newExpressionWithTokens(*tokens) : nullptr;
    if (!tree || tree->isMark() || tree->errorDescription()) {
        showAlert("This formula cannot be typed into a line.");
        return false;
    }
    return returnToCalculator(stack,
                              [&](KeyboardViewController& keyboard) { insertTokens(keyboard, *tokens); });
}

/// A field of the form.
class LetterCell final : public OrvSettingsCell {
public:
    LetterCell(std::string title, FormulaFormViewController& form, std::size_t field)
        : OrvSettingsCell(std::move(title)), m_form(form), m_field(field) {}

    Kind kind() const override { return Kind::TextField; }
    std::string valueText() const override { return m_form.fields()[m_field].text; }
    bool setText(const std::string& text) override { return m_form.setValue(m_field, text); }

private:
    FormulaFormViewController& m_form;
    std::size_t m_field;
};

std::string withoutBlanks(std::string text) {
    std::erase(text, ' ');
    return text;
}

} // namespace

void insertFormula(const PageItem& formula, const std::string& title, NavigationController* stack) {
    const FormulaText text(formula.insertion);
    const std::vector<std::string> known = variablesOfCalculatorLine(stack);
    std::vector<FormulaFormViewController::Field> fields;
    const auto letters = text.letters(known);
    for (const std::string& letter : letters.value_or(std::vector<std::string>())) {
        const auto named = std::ranges::find(formula.letters, letter, &FormulaLetter::name);
        const bool isVariable = std::ranges::find(kVariables, letter) != kVariables.end();
        fields.push_back({{letter, named == formula.letters.end() ? std::string() : named->meaning},
                          isVariable ? letter : std::string(),
                          isVariable});
    }
    if (!letters || fields.empty() || !stack) {
        insertIfItParses(text.tokens([](const std::string&) { return std::nullopt; }), stack);
        return;
    }
    auto form = std::make_shared<FormulaFormViewController>(formula.insertion, std::move(fields));
    form->setTitle(title);
    stack->push(std::move(form));
}

FormulaFormViewController::FormulaFormViewController(std::string insertion, std::vector<Field> fields)
    : m_insertion(std::move(insertion)), m_fields(std::move(fields)) {}

bool FormulaFormViewController::setValue(std::size_t field, const std::string& text) {
    if (field >= m_fields.size()) {
        return false;
    }
    const std::string value = withoutBlanks(text);
    const bool staysLetter = m_fields[field].mayStay && value == m_fields[field].letter.name;
    if (!value.empty() && !staysLetter && !tokensOfNumber(value)) {
        showAlert("“" + text + "” is no number. Numbers have a decimal point, such as -2.5 or 1E-9.");
        return false;
    }
    m_fields[field].text = value;
    return true;
}

void FormulaFormViewController::insert() {
    for (const Field& field : m_fields) {
        if (field.text.empty()) {
            showAlert("A value for " + field.letter.name + " is missing.");
            return;
        }
    }
    const auto tokens =
        FormulaText(m_insertion).tokens([&](const std::string& letter) -> std::optional<TokenArray> {
            const auto field =
                std::ranges::find_if(m_fields, [&](const Field& row) { return row.letter.name == letter; });
            return field == m_fields.end() ? std::nullopt : tokensOfNumber(field->text);
        });
    NavigationController* stack = navigationController();
    const bool isAbove = stack && stack->topViewController().get() == this;
    if (insertIfItParses(tokens, stack) && isAbove && stack->topViewController().get() == this) {
        stack->pop(false); // the line is on another tab; who comes back finds the page
    }
}

int FormulaFormViewController::rawNumberOfRowsInRawSection(int section) const {
    return section == 0 ? static_cast<int>(m_fields.size()) : 1;
}

std::string FormulaFormViewController::titleForHeaderInRawSection(int section) const {
    return section == 0 ? "Values" : "";
}

std::shared_ptr<OrvSettingsCell> FormulaFormViewController::cellForRaw(int section, int row) {
    const auto index = static_cast<std::size_t>(row);
    if (section != 0 || index >= m_fields.size()) {
        return std::make_shared<OrvButtonSettingsCell>("Put into the line", [this] { insert(); });
    }
    const FormulaLetter& letter = m_fields[index].letter;
    const std::string title = letter.meaning.empty() ? letter.name : letter.name + ", " + letter.meaning;
    return std::make_shared<LetterCell>(title, *this, index);
}

bool FormulaFormViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

} // namespace velmora
