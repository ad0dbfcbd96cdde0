#include "engine/lines/ExpressionWithTokenArray.h"

#include "engine/environment/DefinitionRevision.h"
#include "engine/tree/ErrorExpression.h"
#include "engine/tree/ErrorTexts.h"
#include "engine/tree/Expression.h"
#include "platform/files/KeyedArchive.h"
#include "platform/machine/Pasteboard.h"

#include <algorithm>
#include <iterator>

namespace velmora {

namespace {

constexpr std::string_view kTokenArrayKey = "TokenArrayKey";
constexpr std::string_view kKeptResultKey = "KeptResultKey";
constexpr std::string_view kKeptRealKey = "Real";
constexpr std::string_view kKeptImaginaryKey = "Imaginary";
constexpr std::string_view kKeptErrorKey = "Error";

// Constants that name constants are parsed one inside the other; a longer chain than any list holds
// would exhaust the stack.
constexpr int kMaximumNestedParses = 200;

bool holdsConstants(const TokenArray& tokens) {
    return std::any_of(tokens.begin(), tokens.end(), [](const TokenElement& element) {
        return element.token() != nullptr && element.token()->internalRepresentation().starts_with('@');
    });
}

PropertyList archivedResult(const KeptResult& result) {
    KeyedArchiver coder;
    coder.encode(kKeptRealKey, result.value.real());
    coder.encode(kKeptImaginaryKey, result.value.imag());
    coder.encode(kKeptErrorKey, result.errorText);
    return coder.propertyList();
}

std::optional<KeptResult> unarchivedResult(const PropertyList* list) {
    if (list == nullptr) {
        return std::nullopt;
    }
    const KeyedUnarchiver coder(*list);
    const auto real = coder.number(kKeptRealKey);
    if (!real) {
        return std::nullopt;
    }
    return KeptResult{{*real, coder.number(kKeptImaginaryKey).value_or(0)},
                      coder.text(kKeptErrorKey).value_or("")};
}

} // namespace

ExpressionWithTokenArray::ExpressionWithTokenArray(TokenArray tokens)
    : m_tokens(std::move(tokens)), m_cursor(static_cast<int>(m_tokens.size())) {}

ExpressionWithTokenArray::~ExpressionWithTokenArray() = default;

ExpressionWithTokenArray::ExpressionWithTokenArray(const ExpressionWithTokenArray& other)
    : ExpressionWithTokenArray(other.m_tokens) {
    m_keptResult = other.m_keptResult;
}

ExpressionWithTokenArray& ExpressionWithTokenArray::operator=(const ExpressionWithTokenArray& other) {
    if (this != &other) {
        setTokenArray(other.m_tokens);
        m_keptResult = other.m_keptResult;
    }
    return *this;
}

std::unique_ptr<ExpressionWithTokenArray> ExpressionWithTokenArray::copy() const {
    return std::make_unique<ExpressionWithTokenArray>(*this);
}

void ExpressionWithTokenArray::setTokenArray(TokenArray tokens) {
    m_tokens = std::move(tokens);
    m_cursor = count();
    clearExpression();
}

void ExpressionWithTokenArray::moveCursor(int delta) {
    const auto position = static_cast<std::int64_t>(m_cursor) + delta;
    m_cursor = static_cast<int>(std::clamp<std::int64_t>(position, 0, count()));
}

void ExpressionWithTokenArray::moveCursorTo(int position) { m_cursor = std::clamp(position, 0, count()); }

void ExpressionWithTokenArray::insertToken(TokenElement token) {
    m_tokens.insert(m_tokens.begin() + m_cursor, std::move(token));
    ++m_cursor;
    clearExpression();
}

void ExpressionWithTokenArray::insertTokenArray(TokenArray tokens) {
    m_tokens.insert(m_tokens.begin() + m_cursor, std::make_move_iterator(tokens.begin()),
                    std::make_move_iterator(tokens.end()));
    moveCursor(1); // not beyond the end when there was nothing to insert
    clearExpression();
}

void ExpressionWithTokenArray::deleteAtCursor() {
    if (m_cursor < 1) {
        return;
    }
    --m_cursor;
    m_tokens.erase(m_tokens.begin() + m_cursor);
    clearExpression();
}

void ExpressionWithTokenArray::reset() {
    m_tokens.clear();
    m_cursor = 0;
    clearExpression();
}

void ExpressionWithTokenArray::clearExpression() {
    m_expression = nullptr;
    m_keptResult.reset();
    definitionsChanged();
}

std::shared_ptr<const Expression> ExpressionWithTokenArray::expression() const {
    if (m_isBeingParsed) {
        return nullptr;
    }
    if (m_expression != nullptr && (m_parsedAtRevision == 0 || m_parsedAtRevision == definitionRevision())) {
        return m_expression;
    }
    static int nestedParses = 0;
    if (nestedParses >= kMaximumNestedParses) {
        return std::make_shared<ErrorExpression>(kUnableToParse);
    }
    m_isBeingParsed = true;
    ++nestedParses;
    m_expression = Expression::newExpressionWithTokens(m_tokens);
    --nestedParses;
    m_isBeingParsed = false;
    m_parsedAtRevision = holdsConstants(m_tokens) ? definitionRevision() : 0;
    return m_expression;
}

bool ExpressionWithTokenArray::enoughRightParens() const {
    int open = 0;
    for (const TokenElement& element : m_tokens) {
        if (element.token() == nullptr) {
            continue;
        }
        const std::string text = element.token()->toDisplayString();
        if (text.find('(') != std::string::npos) {
            ++open;
        }
        if (text == ")") {
            --open;
        }
    }
    return open < 1;
}

std::string ExpressionWithTokenArray::toDisplayString() const { return velmora::toDisplayString(m_tokens); }

std::string ExpressionWithTokenArray::beforeCursorString() const {
    return velmora::toDisplayString(TokenArray(m_tokens.begin(), m_tokens.begin() + m_cursor));
}

std::string ExpressionWithTokenArray::afterCursorString() const {
    return velmora::toDisplayString(TokenArray(m_tokens.begin() + m_cursor, m_tokens.end()));
}

std::string ExpressionWithTokenArray::displayStringWithCursor() const {
    const bool isAtEnd = m_cursor == count();
    return beforeCursorString() + (isAtEnd ? "" : Token::cursorToken().toDisplayString()) +
           afterCursorString();
}

void ExpressionWithTokenArray::setInequalityTypeWithToken(const Token&) {}

void ExpressionWithTokenArray::copyToPasteboard() const {
    PasteboardItem item;
    item.emplace(kPlainTextType, toDisplayString());
    item.emplace(kTokenArrayPasteboardType, binaryPropertyList(archivedTokenArray(m_tokens)));
    generalPasteboard().setItems({std::move(item)});
}

void ExpressionWithTokenArray::cutToPasteboard() {
    copyToPasteboard();
    reset();
}

void ExpressionWithTokenArray::keepResult() {
    const auto tree = expression();
    if (tree == nullptr || tree->hasRecursion()) {
        m_keptResult = KeptResult{undefinedValue(), std::string(kRecursionFound)};
        return;
    }
    const ComplexValue value = tree->value();
    const bool isUndefined = isReal(value) && std::isnan(value.real());
    m_keptResult = KeptResult{value, isUndefined ? tree->errorDescription().value_or("") : ""};
}

std::string ExpressionWithTokenArray::resultText() const {
    const auto tree = expression();
    if (m_keptResult) {
        if (!m_keptResult->errorText.empty()) {
            return m_keptResult->errorText;
        }
        const bool isUndefined = isReal(m_keptResult->value) && std::isnan(m_keptResult->value.real());
        return isUndefined ? std::string(kUndefined) : tree->formattedValue(m_keptResult->value);
    }
    if (tree == nullptr || tree->hasRecursion()) {
        return std::string(kRecursionFound);
    }
    return tree->formattedValueOrErrorDescription();
}

ComplexValue ExpressionWithTokenArray::resultValue() const {
    if (m_keptResult) {
        return m_keptResult->value;
    }
    const auto tree = expression();
    return tree == nullptr || tree->hasRecursion() ? undefinedValue() : tree->value();
}

void ExpressionWithTokenArray::encodeWithCoder(KeyedArchiver& coder) const {
    coder.encode(kTokenArrayKey, archivedTokenArray(m_tokens));
    if (m_keptResult) {
        coder.encode(kKeptResultKey, archivedResult(*m_keptResult));
    }
}

void ExpressionWithTokenArray::decodeFields(const KeyedUnarchiver& coder) {
    if (const PropertyList* tokens = coder.value(kTokenArrayKey)) {
        setTokenArray(unarchivedTokenArray(*tokens));
    }
    m_keptResult = unarchivedResult(coder.value(kKeptResultKey));
}

ExpressionWithTokenArray ExpressionWithTokenArray::decode(const KeyedUnarchiver& coder) {
    ExpressionWithTokenArray line;
    line.decodeFields(coder);
    return line;
}

} // namespace velmora
