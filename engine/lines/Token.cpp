#include "engine/lines/Token.h"

#include "engine/environment/Environment.h"
#include "engine/lines/NamedExpressionList.h"
#include "engine/lines/TokenElement.h"
#include "platform/files/KeyedArchive.h"
#include "platform/text/Utf8.h"

#include <charconv>

namespace velmora {

namespace {

constexpr std::string_view kInternalRepresentationKey = "InternalRepresentation";

std::string nameOfConstant(std::string_view token) {
    int number = 0;
    const auto [end, problem] = std::from_chars(token.data() + 2, token.data() + token.size(), number);
    const bool isInRange = problem != std::errc::result_out_of_range && number >= 0;
    const NamedExpressionList* constants = Environment::current().constants();
    return isInRange && constants != nullptr ? constants->fullFunctionNameWithIndex(number - 1)
                                             : std::string(token.substr(1));
}

} // namespace

TokenArray Token::tokenArrayWithString(std::string_view text) {
    std::size_t length = text.size();
    while (length > 0 && text[length - 1] == ',') {
        --length;
    }
    TokenArray tokens;
    tokens.emplace_back(Token(std::string(text.substr(0, length))));
    tokens.insert(tokens.end(), text.size() - length, TokenElement(Token(",")));
    return tokens;
}

bool Token::isUserDefinedConstant() const { return m_text.starts_with("@k"); }

std::string Token::toDisplayString() const {
    if (codePointCount(m_text) < 2) {
        return m_text;
    }
    return isUserDefinedConstant() ? nameOfConstant(m_text) : m_text.substr(0, m_text.find('='));
}

std::string Token::functionListDisplayString() const {
    std::string text = toDisplayString();
    if (codePointCount(text) >= 2 && text.find('(') != std::string::npos) {
        text += ")";
    }
    return text;
}

void Token::encodeWithCoder(KeyedArchiver& coder) const { coder.encode(kInternalRepresentationKey, m_text); }

std::optional<Token> Token::decode(const KeyedUnarchiver& coder) {
    auto text = coder.text(kInternalRepresentationKey);
    return text ? std::optional(Token(std::move(*text))) : std::nullopt;
}

std::string toDisplayString(std::string_view text) {
    if (codePointCount(text) < 2) {
        return std::string(text);
    }
    const std::string_view behindFirst = dropFirst(text);
    return std::string(behindFirst.starts_with('@') ? behindFirst : text.substr(0, text.find('=')));
}

bool isConstantWithUncertainFinalDigit(std::string_view text) {
    if (!text.ends_with(')')) {
        return false;
    }
    const std::string_view opened = dropLast(text, 2);
    return opened.ends_with('(') && dropLast(opened).find('=') != std::string_view::npos;
}

} // namespace velmora
