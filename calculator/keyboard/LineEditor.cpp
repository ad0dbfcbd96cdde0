#include "calculator/keyboard/LineEditor.h"

#include "calculator/keyboard/OperandBefore.h"
#include "calculator/model/LineWords.h"
#include "calculator/model/Model.h"
#include "engine/tree/Number.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace velmora {

namespace {

/// Operators that continue the last answer on an empty line. "-" is missing on purpose, so that a line may
/// begin with a negative number; "_" is on no key of the present layouts.
constexpr std::array<std::string_view, 5> kContinuesLastAnswer{"+", "_", "*", "/", "^"};

/// Whether the text joins a number that stands right before it.
bool continuesNumber(std::string_view text) {
    constexpr std::string_view kOfNumbers = "0123456789.E";
    return text.size() == 1 && kOfNumbers.find(text) != std::string_view::npos;
}

} // namespace

LineEditor::LineEditor(const EditingMode& mode) : m_mode(mode) {}

std::unique_ptr<ExpressionWithTokenArray>
LineEditor::exchangeLine(std::unique_ptr<ExpressionWithTokenArray> line) {
    auto former = std::exchange(m_line, std::move(line));
    m_typed.clear();
    lineChangedElsewhere();
    return former;
}

void LineEditor::lineChangedElsewhere() {
    m_steps.clear();
    m_step = {.edits = {}, .before = place(), .after = {}};
}

void LineEditor::startNewLine() {
    if (m_line) {
        m_line->reset();
    }
    m_typed.clear();
    lineChangedElsewhere();
}

// Tokens.

void LineEditor::insertText(const std::string& text) {
    if (!m_line || text.empty()) {
        return;
    }
    const LineStepScope step(*this);
    if (m_line->count() == 0 && std::ranges::count(kContinuesLastAnswer, text) > 0) {
        insertLastAnswer();
    }
    if (text.find_first_not_of(',') == std::string::npos) {
        // No function leads these commas, so each is a token typed by itself.
        insertElements(TokenArray(text.size(), Token(",")));
        return;
    }
    const int cursor = m_line->cursorPosition();
    replace(cursor, 0, Token::tokenArrayWithString(text), cursor + 1);
}

void LineEditor::insertElements(TokenArray elements) {
    if (m_line) {
        const LineStepScope step(*this);
        const int cursor = m_line->cursorPosition();
        const int behind = cursor + static_cast<int>(elements.size());
        replace(cursor, 0, std::move(elements), behind);
    }
}

void LineEditor::insertLastAnswer() {
    if (!m_mode.isCalculator()) {
        return;
    }
    const ExpressionList& history = Model::m().history();
    const ExpressionWithTokenArray* last = history.entryAtIndex(history.nExpressions() - 1);
    const ComplexValue answer = last ? last->resultValue() : ComplexValue(0);
    insertElements({NamedExpression(std::make_shared<Number>(answer), std::string(kLastAnswer))});
}

void LineEditor::insertPower(const std::string& exponent) {
    const LineStepScope step(*this);
    insertText("^");
    insertText(exponent);
    if (m_line) {
        m_endOfNumber = m_line->cursorPosition();
    }
}

void LineEditor::deleteBackward() {
    const LineStepScope step(*this);
    if (!m_typed.isEmpty()) {
        m_typed.dropLast();
    } else if (m_line && m_line->cursorPosition() > 0) {
        const int position = m_line->cursorPosition() - 1;
        replace(position, 1, {}, position);
    }
}

void LineEditor::deleteForward() {
    if (m_line && m_line->cursorPosition() < m_line->count()) {
        const LineStepScope step(*this);
        replace(m_line->cursorPosition(), 1, {}, m_line->cursorPosition());
    }
}

void LineEditor::clear() { replaceWith({}, {}); }

bool LineEditor::insertFactorial() {
    const bool isAtStart = m_line && m_line->count() == 0;
    const LineStepScope step(*this);
    if (isAtStart) {
        insertLastAnswer();
    }
    const int cursor = m_line ? m_line->cursorPosition() : 0;
    const auto start = m_line ? startOfOperandBefore(m_line->tokenArray(), cursor) : std::nullopt;
    if (!start) {
        return false;
    }
    const TokenArray& tokens = m_line->tokenArray();
    TokenArray call{Token("fact(")};
    call.insert(call.end(), tokens.begin() + *start, tokens.begin() + cursor);
    call.emplace_back(Token(")"));
    replace(*start, cursor - *start, std::move(call), cursor + 2);
    return true;
}

void LineEditor::replaceWith(TokenArray tokens, LinePlace place) {
    const LineStepScope step(*this);
    if (m_line) {
        replace(0, m_line->count(), std::move(tokens), place.cursor);
    }
    m_typed.setText(std::move(place.typed));
}

void LineEditor::moveCursor(int delta) {
    if (m_line) {
        m_line->moveCursor(delta);
    }
}

void LineEditor::moveCursorTo(int gap) {
    if (m_line) {
        m_line->moveCursorTo(gap);
    }
}

void LineEditor::replace(int position, int removedCount, TokenArray inserted, int cursor) {
    const TokenArray& tokens = m_line->tokenArray();
    const auto first = tokens.begin() + position;
    m_endOfNumber.reset();
    LineEdit edit{position, TokenArray(first, first + removedCount), std::move(inserted)};
    splice(position, edit.removed.size(), edit.inserted);
    m_line->moveCursorTo(cursor);
    if (!edit.removed.empty() || !edit.inserted.empty()) {
        m_step.edits.push_back(std::move(edit));
    }
}

void LineEditor::splice(int position, std::size_t removedCount, const TokenArray& inserted) {
    TokenArray tokens = m_line->tokenArray();
    const auto start = std::min(static_cast<std::size_t>(position), tokens.size());
    const auto first = tokens.begin() + static_cast<std::ptrdiff_t>(start);
    const auto count = static_cast<std::ptrdiff_t>(std::min(removedCount, tokens.size() - start));
    const auto behind = tokens.erase(first, first + count);
    tokens.insert(behind, inserted.begin(), inserted.end());
    m_line->setTokenArray(std::move(tokens));
}

// Characters typed one by one.

TypeableNames LineEditor::names() const {
    Model& model = Model::m();
    return TypeableNames({.variables = variablesOfLine(m_mode, m_target),
                          .hasLastAnswer = m_mode.isCalculator(),
                          .equations = &model.equations(),
                          .constants = &model.constants()});
}

void LineEditor::insertNames(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
        if (text == kLastAnswer) {
            insertLastAnswer();
        } else {
            insertElements({Token(text)});
        }
    }
}

std::string LineEditor::typeLetter(std::string_view character) {
    if (!m_line) {
        return {};
    }
    const LineStepScope step(*this);
    const TypeableNames known = names();
    const bool isParted = m_typed.isEmpty() && wouldJoinNumbers(character);
    if (const auto texts = m_typed.add((isParted ? " " : "") + std::string(character), known)) {
        insertNames(*texts);
    }
    const bool isReadable = m_typed.isEmpty() || known.canContinue(m_typed.text());
    return isReadable ? std::string() : known.reasonAgainst(m_typed.text());
}

std::string LineEditor::typeBlank() {
    if (!m_line) {
        return {};
    }
    if (!finishName().empty()) {
        return typeLetter(" ");
    }
    const int cursor = m_line->cursorPosition();
    const Token* before =
        cursor > 0 ? m_line->tokenArray()[static_cast<std::size_t>(cursor - 1)].token() : nullptr;
    if (before && continuesNumber(before->internalRepresentation())) {
        m_endOfNumber = cursor;
    }
    return {};
}

bool LineEditor::wouldJoinNumbers(std::string_view text) const {
    return m_line && m_endOfNumber == m_line->cursorPosition() && continuesNumber(text);
}

bool LineEditor::endsInPower() const {
    const int cursor = m_line ? m_line->cursorPosition() : 0;
    const Token* sign =
        cursor > 1 ? m_line->tokenArray()[static_cast<std::size_t>(cursor - 2)].token() : nullptr;
    return sign && sign->internalRepresentation() == "^";
}

bool LineEditor::extendName(std::string_view character) {
    if (m_typed.isEmpty() || !m_typed.canTake(character, names())) {
        return false;
    }
    typeLetter(character);
    return true;
}

bool LineEditor::takesIntoName(std::string_view character) {
    if (extendName(character)) {
        return true;
    }
    if (finishName().empty()) {
        return false; // nothing waits any more
    }
    const LineStepScope step(*this);
    m_typed.setText(m_typed.text() + std::string(character));
    return true;
}

std::string LineEditor::finishName() {
    if (m_typed.isEmpty()) {
        return {};
    }
    const LineStepScope step(*this);
    const auto texts = m_typed.finish(names());
    if (!texts) {
        return reasonAgainstName();
    }
    insertNames(*texts);
    return {};
}

std::string LineEditor::reasonAgainstName() const { return names().reasonAgainst(m_typed.text()); }

// Steps.

LinePlace LineEditor::place() const { return {m_line ? m_line->cursorPosition() : 0, m_typed.text()}; }

void LineEditor::stand(const LinePlace& place) {
    m_line->moveCursorTo(place.cursor);
    m_typed.setText(place.typed);
    m_step = {.edits = {}, .before = this->place(), .after = {}}; // no step of its own
}

void LineEditor::beginStep() {
    if (m_stepDepth++ == 0) {
        m_step = {.edits = {}, .before = place(), .after = {}};
    }
}

void LineEditor::endStep() {
    if (--m_stepDepth > 0) {
        return;
    }
    m_step.after = place();
    if (!m_step.edits.empty() || m_step.before.typed != m_step.after.typed) {
        m_steps.add(std::move(m_step));
    }
    m_step = {};
}

bool LineEditor::undo() {
    const LineStep* step = m_line ? m_steps.takeBack() : nullptr;
    if (!step) {
        return false;
    }
    for (auto edit = step->edits.rbegin(); edit != step->edits.rend(); ++edit) {
        splice(edit->position, edit->inserted.size(), edit->removed);
    }
    stand(step->before);
    return true;
}

bool LineEditor::redo() {
    const LineStep* step = m_line ? m_steps.makeAgain() : nullptr;
    if (!step) {
        return false;
    }
    for (const LineEdit& edit : step->edits) {
        splice(edit.position, edit.removed.size(), edit.inserted);
    }
    stand(step->after);
    return true;
}

} // namespace velmora
