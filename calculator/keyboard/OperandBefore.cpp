#include "calculator/keyboard/OperandBefore.h"

#include <string_view>

namespace velmora {

namespace {

/// The text of a token; empty for a finished expression, which is an operand whatever it shows.
std::string_view textAt(const TokenArray& tokens, int index) {
    const Token* token = tokens[static_cast<std::size_t>(index)].token();
    return token ? std::string_view(token->internalRepresentation()) : std::string_view();
}

bool isDigitOrPoint(std::string_view text) {
    return text.size() == 1 && ((text[0] >= '0' && text[0] <= '9') || text[0] == '.');
}

bool isNoOperand(std::string_view text) {
    constexpr std::string_view kOperators = "+-*/^,N";
    return text.ends_with('(') || (text.size() == 1 && kOperators.find(text) != std::string_view::npos);
}

int startOfNumberEndingAt(const TokenArray& tokens, int last) {
    int first = last;
    while (first > 0) {
        const std::string_view before = textAt(tokens, first - 1);
        const bool isSignOfExponent = before == "-" && first > 1 && textAt(tokens, first - 2) == "E";
        if (!isDigitOrPoint(before) && before != "E" && !isSignOfExponent) {
            break;
        }
        --first;
    }
    // An exponent mark without digits before it joins no number.
    while (first < last && (textAt(tokens, first) == "E" || textAt(tokens, first) == "-")) {
        ++first;
    }
    return first;
}

std::optional<int> startOfTermClosedAt(const TokenArray& tokens, int last) {
    int open = 0;
    for (int index = last; index >= 0; --index) {
        const std::string_view text = textAt(tokens, index);
        open += text == ")" ? 1 : 0;
        open -= text.ends_with('(') ? 1 : 0;
        if (open == 0) {
            return index;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<int> startOfOperandBefore(const TokenArray& tokens, int gap) {
    const int last = gap - 1;
    if (last < 0 || isNoOperand(textAt(tokens, last))) {
        return std::nullopt;
    }
    const std::string_view text = textAt(tokens, last);
    if (text == ")") {
        return startOfTermClosedAt(tokens, last);
    }
    return isDigitOrPoint(text) || text == "E" ? startOfNumberEndingAt(tokens, last) : last;
}

} // namespace velmora
