#pragma once

#include "calculator/keyboard/EditingMode.h"
#include "calculator/keyboard/LineSteps.h"
#include "calculator/keyboard/TypedName.h"
#include "engine/lines/ExpressionWithTokenArray.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

class ExpressionList;

/// Edits a line for whatever input drives it: keys on screen and of hardware, choices from lists, a paste.
/// Holds the line, the letters that wait in it, and the steps that can be taken back. Nothing is done while
/// there is no line.
class LineEditor {
public:
    explicit LineEditor(const EditingMode& mode);

    /// The list whose variables the line may hold; null for none.
    void setTarget(const ExpressionList* target) { m_target = target; }
    /// The line; null only when it was set so.
    ExpressionWithTokenArray* line() const { return m_line.get(); }
    /// Another line; no step leads back over it. The former one is handed over.
    std::unique_ptr<ExpressionWithTokenArray> exchangeLine(std::unique_ptr<ExpressionWithTokenArray> line);
    /// The line was changed by others: the steps no longer fit it.
    void lineChangedElsewhere();
    /// The line has done its work; what follows is another one, empty.
    void startNewLine();
    bool isEmpty() const { return !m_line || (m_line->count() == 0 && m_typed.isEmpty()); }

    // Tokens at the cursor.
    /// The text of a key: a token, or a function and the commas its arguments need, with the cursor behind
    /// its parenthesis. An operator on an empty calculator line first puts the last answer there.
    void insertText(const std::string& text);
    /// Elements, with the cursor behind them.
    void insertElements(TokenArray elements);
    /// The last answer; nothing in the editing modes.
    void insertLastAnswer();
    /// Puts "fact(" and ")" round the operand before the cursor: a number, a name, a call or a bracketed
    /// term; on an empty calculator line round the last answer. False, with nothing done, without one.
    bool insertFactorial();
    /// "^" and an exponent that ends there: digits typed behind it are not its own.
    void insertPower(const std::string& exponent);
    void deleteBackward(); ///< a waiting character first
    void deleteForward();
    void clear();
    void replaceWith(TokenArray tokens, LinePlace place);

    void moveCursor(int delta);
    void moveCursorTo(int gap);

    // Characters typed one by one.
    const std::string& typedName() const { return m_typed.text(); }
    /// Any character that is no key by itself. It stays visible whatever it is; why it cannot be read, or
    /// empty.
    std::string typeLetter(std::string_view character);
    /// A character that has a key of its own, while letters wait: true when they took it, for it may belong
    /// to their name, or because they cannot be read, so that what follows must wait as well.
    bool takesIntoName(std::string_view character);
    /// A blank between names and numbers. It is not shown, but the digits before and behind it never become
    /// one number. Why it cannot stand where it is, or empty.
    std::string typeBlank();
    /// Whether the text would make one number of two that a blank, or the raised digit of a power, parts.
    bool wouldJoinNumbers(std::string_view text) const;
    /// Whether an exponent of one token stands before the cursor.
    bool endsInPower() const;
    /// Whether the letters that wait may still become a name.
    bool waitsForMore() const { return names().canContinue(typedName()); }
    /// Whether the letters that wait can take the character into their name.
    bool extendName(std::string_view character);
    /// Turns the letters that wait into their tokens. Empty when none are left, else why they cannot be
    /// read, and nothing has changed.
    std::string finishName();
    /// Why the letters that wait are no name.
    std::string reasonAgainstName() const;

    /// The line as it stands, to come back to.
    LinePlace place() const;

    /// What happens between the two is one step, also when it is many edits. They may be nested.
    void beginStep();
    void endStep();
    /// Take the last step back, or make it again. False when there is none.
    bool undo();
    bool redo();

    /// What can be typed by its letters in this line.
    TypeableNames names() const;

private:
    void insertNames(const std::vector<std::string>& texts);
    void replace(int position, int removedCount, TokenArray inserted, int cursor);
    void splice(int position, std::size_t removedCount, const TokenArray& inserted);
    void stand(const LinePlace& place);

    const EditingMode& m_mode;
    const ExpressionList* m_target = nullptr;
    std::unique_ptr<ExpressionWithTokenArray> m_line;
    TypedName m_typed;
    LineSteps m_steps;
    LineStep m_step; // being made
    /// The gap behind a number that is complete, because a blank or a raised digit was typed there.
    std::optional<int> m_endOfNumber;
    int m_stepDepth = 0;
};

/// Makes what is done during its life one step.
class LineStepScope {
public:
    explicit LineStepScope(LineEditor& editor) : m_editor(editor) { m_editor.beginStep(); }
    ~LineStepScope() { m_editor.endStep(); }
    LineStepScope(const LineStepScope&) = delete;
    LineStepScope& operator=(const LineStepScope&) = delete;

private:
    LineEditor& m_editor;
};

} // namespace velmora
