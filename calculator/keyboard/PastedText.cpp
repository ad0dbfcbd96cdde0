#include "calculator/keyboard/PastedText.h"

#include "calculator/keyboard/HardwareKeys.h"
#include "calculator/keyboard/OperandBefore.h"
#include "engine/functions/BivarTable.h"
#include "engine/tree/TriFunction.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

namespace velmora {

namespace {

// The blanks of texts: the common one, and those that do not break or are thin.
constexpr std::array<std::string_view, 5> kBlanks{" ", "\u00a0", "\u2009", "\u202f", "\u2007"};
constexpr std::array<std::string_view, 4> kLineEnds{"\n", "\r", "\t", "\v"};
constexpr std::size_t kDigitsOfGroup = 3;

bool isBlank(std::string_view character) { return std::ranges::find(kBlanks, character) != kBlanks.end(); }
bool isLineEnd(std::string_view character) {
    return std::ranges::find(kLineEnds, character) != kLineEnds.end();
}
bool isDigit(std::string_view character) {
    return character.size() == 1 && character[0] >= '0' && character[0] <= '9';
}

bool takesSeveralInputs(std::string_view token) {
    return bivarTypeWithToken(token) != BivarType::NoOperator || TriFunction::acceptsToken(token);
}

std::string inQuotes(const std::string& text) { return "“" + text + "”"; }

std::string withoutOuterBlanks(std::string_view text) {
    std::vector<std::string> characters = splitCodePoints(text);
    const auto isOuter = [](const std::string& character) {
        return isBlank(character) || isLineEnd(character);
    };
    const auto first = std::ranges::find_if_not(characters, isOuter);
    const auto last =
        std::find_if_not(characters.rbegin(), std::make_reverse_iterator(first), isOuter).base();
    std::string trimmed;
    for (auto character = first; character != last; ++character) {
        trimmed += *character;
    }
    return trimmed;
}

/// Walks through the text once, from left to right.
class Reader {
public:
    Reader(std::string_view text, const TypeableNames& names)
        : m_characters(splitCodePoints(text)), m_names(names) {}

    PastedText read() {
        while (m_next < m_characters.size() && m_reason.empty()) {
            readNext();
        }
        return m_reason.empty() ? PastedText{std::move(m_tokens), {}} : PastedText{std::nullopt, m_reason};
    }

private:
    std::string_view at(std::size_t offset = 0) const {
        const std::size_t index = m_next + offset;
        return index < m_characters.size() ? std::string_view(m_characters[index]) : std::string_view();
    }
    void refuse(std::string reason) { m_reason = std::move(reason); }
    void append(std::string text) { m_tokens.emplace_back(Token(std::move(text))); }
    std::string_view lastToken() const {
        const Token* token = m_tokens.empty() ? nullptr : m_tokens.back().token();
        return token ? std::string_view(token->internalRepresentation()) : std::string_view();
    }

    void readNext() {
        const std::string character(at());
        const HardwareKey key = hardwareKeyWithText(character);
        if (isBlank(character)) {
            ++m_next;
            m_isBehindBlank = true;
            return;
        }
        const bool wasBehindBlank = std::exchange(m_isBehindBlank, false);
        const bool wasPower = std::exchange(m_isBehindPower, false);
        if (isDigit(character) || character == ".") {
            if (wasBehindBlank && endsNumber()) {
                return refuse("A blank cannot stand inside a number.");
            }
            if (wasPower) {
                append("*"); // the raised digit is the whole exponent
            }
            return readNumber();
        }
        if (key.action == HardwareAction::Letter) {
            return readNames(wasBehindBlank);
        }
        ++m_next;
        if (character == "√") {
            readRoot();
        } else if (key.action == HardwareAction::Power) {
            append("^");
            append(key.text);
            m_isBehindPower = true;
        } else if (key.action == HardwareAction::Factorial) {
            readFactorial(character);
        } else if (character == "(") {
            open("(");
        } else if (character == ")") {
            close();
        } else if (character == ",") {
            readComma();
        } else if (key.action == HardwareAction::Type &&
                   std::string_view("+-*/^π").find(key.text) != std::string_view::npos) {
            append(key.text);
        } else {
            refuse(m_names.reasonAgainst(character));
        }
    }

    bool endsNumber() const { return isDigit(lastToken()) || lastToken() == "." || lastToken() == "E"; }
    bool isBetweenInputs() const { return !m_takesSeveral.empty() && m_takesSeveral.back(); }

    void open(const std::string& token) {
        append(token);
        m_takesSeveral.push_back(takesSeveralInputs(token));
    }

    void close() {
        append(")");
        if (!m_takesSeveral.empty()) {
            m_takesSeveral.pop_back();
        }
    }

    void readComma() {
        if (isBetweenInputs()) {
            append(",");
        } else {
            refuse(inQuotes(",") +
                   " cannot be read here. A decimal point is needed where it stands for one.");
        }
    }

    /// Digits, groups of three of them, a point and an exponent.
    void readNumber() {
        const std::size_t start = m_next;
        readDigits();
        const std::size_t digits = m_next - start;
        const bool mayHaveGroups =
            !isBetweenInputs() && digits >= 1 && digits <= kDigitsOfGroup && m_characters[start] != "0";
        while (mayHaveGroups && at() == "," && isGroupAt(1)) {
            ++m_next;
            readDigits();
        }
        if (at() == ".") {
            append(".");
            ++m_next;
            readDigits();
        }
        readExponent();
        const bool isComma = at() == "," && !isBetweenInputs();
        if (isComma || at() == ".") {
            do { // the whole of what looks like one number
                ++m_next;
            } while (isDigit(at()) || at() == "." || at() == ",");
            std::string number;
            for (std::size_t index = start; index < m_next; ++index) {
                number += m_characters[index];
            }
            refuse(inQuotes(number) + " is no number here. Decimals stand behind a point.");
        }
    }

    bool isGroupAt(std::size_t offset) const {
        const bool hasDigits = isDigit(at(offset)) && isDigit(at(offset + 1)) && isDigit(at(offset + 2));
        return hasDigits && !isDigit(at(offset + kDigitsOfGroup));
    }

    void readDigits() {
        for (; isDigit(at()); ++m_next) {
            append(std::string(at()));
        }
    }

    void readExponent() {
        const bool hasMark = at() == "e" || at() == "E";
        const bool hasSign = hasMark && (at(1) == "+" || at(1) == "-" || at(1) == "−");
        if (!hasMark || !isDigit(at(hasSign ? 2 : 1))) {
            return; // the number e, or the start of a name
        }
        append("E");
        if (hasSign && at(1) != "+") {
            append("-");
        }
        m_next += hasSign ? 2 : 1;
        readDigits();
    }

    /// Names up to what ends them, or to the parenthesis of a function.
    void readNames(bool isBehindBlank) {
        std::string typed;
        while (m_next < m_characters.size()) {
            const std::string character(at());
            const bool goesOn =
                isDigit(character) || hardwareKeyWithText(character).action == HardwareAction::Letter;
            if (!goesOn && character != "(") {
                break;
            }
            typed += character;
            ++m_next;
            if (character == "(") {
                break;
            }
        }
        auto texts = m_names.insertedTexts(typed);
        if (!texts) {
            texts = readCallWithBlank(typed);
        }
        if (!texts) {
            return refuse(m_names.reasonAgainst(typed));
        }
        if (isBehindBlank && texts->front() == "E" && endsNumber()) {
            return refuse("A blank cannot stand inside a number.");
        }
        for (const std::string& text : *texts) {
            if (text.ends_with('(')) {
                open(text);
            } else {
                append(text);
            }
        }
    }

    /// A function whose parenthesis stands apart: "cos (0)".
    std::optional<std::vector<std::string>> readCallWithBlank(const std::string& name) {
        std::size_t blanks = 0;
        while (isBlank(at(blanks))) {
            ++blanks;
        }
        auto texts = at(blanks) == "(" ? m_names.insertedTexts(name + "(") : std::nullopt;
        if (texts) {
            m_next += blanks + 1;
        }
        return texts;
    }

    /// A root sign ends where its operand does: "√9+16" is 19.
    void readRoot() {
        while (isBlank(at())) {
            ++m_next;
        }
        if (at() == "(") {
            ++m_next;
            return open("sqrt(");
        }
        append("sqrt(");
        const std::size_t operand = m_tokens.size();
        if (isDigit(at()) || at() == ".") {
            readNumber();
        } else if (hardwareKeyWithText(at()).action == HardwareAction::Letter) {
            readNames(false);
        } else if (at() == "π") {
            ++m_next;
            append("π");
        }
        const bool isOne =
            startOfOperandBefore(m_tokens, static_cast<int>(m_tokens.size())) == static_cast<int>(operand);
        if (m_reason.empty() && !isOne) {
            return refuse(inQuotes("√") + " needs one operand behind it, or a parenthesis.");
        }
        append(")");
    }

    void readFactorial(const std::string& sign) {
        const auto start = startOfOperandBefore(m_tokens, static_cast<int>(m_tokens.size()));
        if (!start) {
            return refuse(m_names.reasonAgainst(sign));
        }
        m_tokens.insert(m_tokens.begin() + *start, Token("fact("));
        append(")");
    }

    std::vector<std::string> m_characters;
    const TypeableNames& m_names;
    std::size_t m_next = 0;
    TokenArray m_tokens;
    std::vector<bool> m_takesSeveral; // of the open parentheses: whether a comma parts their inputs
    bool m_isBehindBlank = false;
    bool m_isBehindPower = false;
    std::string m_reason;
};

} // namespace

PastedText readPastedText(std::string_view text, const TypeableNames& names, bool isAtStartOfLine) {
    const std::string valid = validUtf8(text);
    if (const std::size_t length = codePointCount(valid); length > kLongestPaste) {
        return {std::nullopt, "The text is too long for a line: it has " + std::to_string(length) +
                                  " characters, and 10000 is the most."};
    }
    const std::string line = withoutOuterBlanks(valid);
    if (line.empty()) {
        return {std::nullopt, "There is nothing to paste."};
    }
    if (std::ranges::any_of(splitCodePoints(line), isLineEnd)) {
        return {std::nullopt, "Only one line can be pasted, and not a column or a row of a table."};
    }
    // A sign of a number at the start; a line has no such sign.
    const bool hasPlus = isAtStartOfLine && line.starts_with('+');
    return Reader(dropFirst(line, hasPlus ? 1 : 0), names).read();
}

} // namespace velmora
