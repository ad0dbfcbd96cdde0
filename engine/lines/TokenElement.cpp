#include "engine/lines/TokenElement.h"

#include "engine/tree/Number.h"
#include "platform/files/KeyedArchive.h"
#include "platform/text/Log.h"
#include "platform/text/Utf8.h"

namespace velmora {

namespace {

// The kind of an archived element stands beside its fields, for a token array mixes kinds.
constexpr std::string_view kKindKey = "Kind";
constexpr const char* kTokenKind = "Token";
constexpr const char* kNamedExpressionKind = "NamedExpression";
constexpr const char* kNumberKind = "Number";

template <typename Object> PropertyList archivedObject(const Object& object, const char* kind) {
    KeyedArchiver coder;
    coder.encode(kKindKey, kind);
    object.encodeWithCoder(coder);
    return coder.propertyList();
}

} // namespace

namespace {

std::shared_ptr<const Number> numberOf(const TokenElement& element) {
    const auto* expression = element.expression();
    return expression != nullptr ? std::dynamic_pointer_cast<const Number>(*expression) : nullptr;
}

} // namespace

std::string TokenElement::toDisplayString() const {
    if (const Token* known = token()) {
        return known->toDisplayString();
    }
    if (const NamedExpression* named = namedExpression()) {
        return named->toDisplayString();
    }
    if (const std::string* plain = text()) {
        return velmora::toDisplayString(*plain);
    }
    const auto number = numberOf(*this);
    return number != nullptr ? number->toDisplayString() : std::string();
}

PropertyList TokenElement::archived() const {
    if (const Token* known = token()) {
        return archivedObject(*known, kTokenKind);
    }
    if (const NamedExpression* named = namedExpression()) {
        return archivedObject(*named, kNamedExpressionKind);
    }
    if (const std::string* plain = text()) {
        return *plain;
    }
    const auto number = numberOf(*this);
    return number != nullptr ? archivedObject(*number, kNumberKind) : PropertyList();
}

std::optional<TokenElement> TokenElement::unarchived(const PropertyList& list) {
    if (const std::string* plain = list.asText()) {
        return TokenElement(*plain);
    }
    const KeyedUnarchiver coder(list);
    const std::string kind = coder.text(kKindKey).value_or("");
    if (kind == kTokenKind) {
        auto token = Token::decode(coder);
        return token ? std::optional(TokenElement(std::move(*token))) : std::nullopt;
    }
    if (kind == kNamedExpressionKind) {
        return TokenElement(NamedExpression::decode(coder));
    }
    if (kind == kNumberKind) {
        return TokenElement(std::shared_ptr<const Expression>(Number::decode(coder)));
    }
    return std::nullopt;
}

TokenArray textsOfCharacters(std::string_view text) {
    TokenArray texts;
    for (std::string& character : splitCodePoints(text)) {
        texts.emplace_back(std::move(character));
    }
    return texts;
}

void changeStringsToTokens(TokenArray& tokens) {
    for (TokenElement& element : tokens) {
        if (const std::string* text = element.text()) {
            element = TokenElement(Token(*text));
        }
    }
}

std::string toDisplayString(const TokenArray& tokens) {
    std::string text;
    for (const TokenElement& element : tokens) {
        text += element.toDisplayString();
    }
    return text;
}

PropertyList archivedTokenArray(const TokenArray& tokens) {
    PropertyArray array;
    for (const TokenElement& element : tokens) {
        PropertyList archived = element.archived();
        if (archived.isNothing()) {
            log("an expression of a line has no saved form and is left out");
            continue;
        }
        array.push_back(std::move(archived));
    }
    return array;
}

TokenArray unarchivedTokenArray(const PropertyList& list) {
    TokenArray tokens;
    if (const PropertyArray* array = list.asArray()) {
        for (const PropertyList& element : *array) {
            if (auto token = TokenElement::unarchived(element)) {
                tokens.push_back(std::move(*token));
            }
        }
    }
    return tokens;
}

} // namespace velmora
