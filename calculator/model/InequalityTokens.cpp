#include "calculator/model/InequalityTokens.h"

#include "engine/tree/BivarFunction.h"
#include "platform/files/KeyedArchive.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

constexpr std::string_view kTypeKey = "InequalityTypeKey";

struct SignRow {
    std::string_view sign;
    BivarType comparison;
};
constexpr std::array kSigns{
    SignRow{"≥", BivarType::GreaterOrEqual},
    SignRow{">", BivarType::Greater},
    SignRow{"≤", BivarType::LessOrEqual},
    SignRow{"<", BivarType::Less},
};

const SignRow* signRow(std::string_view sign) {
    const auto* found = std::ranges::find(kSigns, sign, &SignRow::sign);
    return found == kSigns.end() ? nullptr : found;
}

} // namespace

std::unique_ptr<ExpressionWithTokenArray> InequalityTokens::copy() const {
    return std::make_unique<InequalityTokens>(*this);
}

bool InequalityTokens::isInequalitySign(std::string_view text) { return signRow(text) != nullptr; }

void InequalityTokens::setInequalityTypeWithToken(const Token& token) {
    const std::string& sign = token.internalRepresentation();
    if (!isInequalitySign(sign)) {
        return;
    }
    m_type = sign;
    m_checkedTree = nullptr;
}

std::string InequalityTokens::inequalityString() const {
    return count() == 0 ? std::string() : toDisplayString() + m_type + "0";
}

std::shared_ptr<const Expression> InequalityTokens::inequality() const {
    auto line = expression();
    if (count() == 0 || !line || line->errorDescription()) {
        return line;
    }
    const TokenArray zero{Token("0")};
    return std::make_shared<BivarFunction>(signRow(m_type)->comparison, tokenArray(), zero);
}

bool InequalityTokens::hasBeenCheckedForPolynomial() const {
    // Every edit drops the tree, so the flag need only remember which tree it speaks of.
    return m_checkedTree && m_checkedTree == expression();
}

void InequalityTokens::setHasBeenCheckedForPolynomial(bool checked) {
    m_checkedTree = checked ? expression() : nullptr;
}

void InequalityTokens::encodeWithCoder(KeyedArchiver& coder) const {
    ExpressionWithTokenArray::encodeWithCoder(coder);
    coder.encode(kTypeKey, m_type);
}

InequalityTokens InequalityTokens::decode(const KeyedUnarchiver& coder) {
    InequalityTokens entry;
    entry.decodeFields(coder);
    entry.setInequalityTypeWithToken(Token(coder.text(kTypeKey).value_or("<")));
    return entry;
}

} // namespace velmora
