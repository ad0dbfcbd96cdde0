#pragma once

#include "engine/tree/Expression.h"

#include <memory>
#include <string>
#include <string_view>

namespace velmora {

class KeyedArchiver;
class KeyedUnarchiver;

/// A constant leaf.
class Number final : public Expression {
public:
    explicit Number(ComplexValue number) { setConstant(number); }
    explicit Number(double number) : Number(ComplexValue(number, 0.0)) {}
    /// The number that a token's text stands for: decimal digits, "i", "e", "π", or the value behind
    /// the "=" of a named constant. Null for any other text.
    static std::unique_ptr<Number> newNumberWithText(std::string_view text);

    ComplexValue number() const { return constant(); }
    bool canBeFollowedByImpliedMultiplication() const override { return true; }
    /// The value in parentheses, as it shows inside a line.
    std::string toDisplayString() const;
    void describe(DescriptionWriter& writer) const override;

    void encodeWithCoder(KeyedArchiver& coder) const;
    static std::unique_ptr<Number> decode(const KeyedUnarchiver& coder);
};

/// The decimal value of the text's leading numeric prefix; 0 when there is none. Too large a number is
/// infinite, too small a one 0. Independent of the locale.
double decimalPrefixValue(std::string_view text);

} // namespace velmora
