#pragma once

#include "engine/lines/TokenElement.h"
#include "engine/numbers/ComplexValue.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace velmora {

class Expression;

/// A result as it was when its line was evaluated, so that later edits cannot change it.
struct KeptResult {
    ComplexValue value;
    std::string errorText; ///< shown in place of a value; empty when there is a value or it is undefined
};

/// One editable line: tokens, a cursor between them, and the tree of the tokens, parsed on demand and
/// dropped by every edit.
class ExpressionWithTokenArray {
public:
    ExpressionWithTokenArray() = default;
    /// The cursor stands at the end.
    explicit ExpressionWithTokenArray(TokenArray tokens);
    virtual ~ExpressionWithTokenArray();
    /// A copy holds the same tokens, its cursor at the end, and parses anew.
    ExpressionWithTokenArray(const ExpressionWithTokenArray& other);
    ExpressionWithTokenArray& operator=(const ExpressionWithTokenArray& other);
    /// A copy of the same class.
    virtual std::unique_ptr<ExpressionWithTokenArray> copy() const;

    const TokenArray& tokenArray() const { return m_tokens; }
    /// Replaces the tokens; the cursor goes to the end.
    void setTokenArray(TokenArray tokens);
    int count() const { return static_cast<int>(m_tokens.size()); }

    /// The gap before which the next token is inserted; 0 is before the first token.
    int cursorPosition() const { return m_cursor; }
    /// The position must lie in 0 to count(); moveCursorTo() clamps, this does not.
    void setCursorPosition(int position) { m_cursor = position; }
    void moveCursor(int delta);
    void moveCursorTo(int position);

    void insertToken(TokenElement token);
    /// Inserts all tokens but advances the cursor by one only. Intended: a function inserted with its
    /// commas leaves the cursor right after its parenthesis, ready for the first argument.
    void insertTokenArray(TokenArray tokens);
    /// Removes the token before the cursor; at the start of the line nothing happens.
    void deleteAtCursor();
    void reset();
    void clearExpression();

    /// The tree of the line, never null but in one case: while this very line is being parsed (a
    /// constant that refers to itself), when it is null.
    std::shared_ptr<const Expression> expression() const;

    /// True when no parenthesis is open any more. A function token opens one.
    bool enoughRightParens() const;

    std::string toDisplayString() const;
    std::string beforeCursorString() const;
    std::string afterCursorString() const;
    /// The line with "_" at the cursor, unless the cursor stands at the end.
    std::string displayStringWithCursor() const;

    /// Lines that are no inequality have no such type and ignore this.
    virtual void setInequalityTypeWithToken(const Token& token);

    /// Edit menu. Only copying is offered; cutting copies and empties the line; pasting does nothing.
    static bool canPerformCopy() { return true; }
    static bool canPerformCut() { return false; }
    static bool canPerformPaste() { return false; }
    void copyToPasteboard() const;
    void cutToPasteboard();
    void paste() {}

    /// A result kept with the line (history rows), or nothing.
    const std::optional<KeptResult>& keptResult() const { return m_keptResult; }
    /// Evaluates the line now and keeps the result.
    void keepResult();
    /// The text shown as the line's result: the kept one if there is one, in the present number style.
    /// "Recursion found." when the line leads round a circle.
    std::string resultText() const;
    /// The line's value: the kept one, or the tree's.
    ComplexValue resultValue() const;

    virtual void encodeWithCoder(KeyedArchiver& coder) const;
    static ExpressionWithTokenArray decode(const KeyedUnarchiver& coder);

protected:
    void decodeFields(const KeyedUnarchiver& coder);

private:
    TokenArray m_tokens;
    int m_cursor = 0;
    std::optional<KeptResult> m_keptResult;
    mutable std::shared_ptr<const Expression> m_expression;
    mutable std::uint64_t m_parsedAtRevision = 0;
    mutable bool m_isBeingParsed = false;
};

/// The type under which a copied line's tokens stand on the pasteboard.
inline constexpr std::string_view kTokenArrayPasteboardType = "app.velmora.token-array";

} // namespace velmora
