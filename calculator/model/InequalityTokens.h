#pragma once

#include "engine/lines/ExpressionWithTokenArray.h"

#include <memory>
#include <string>
#include <string_view>

namespace velmora {

/// An inequality between a line in x and y and 0: the line, and one of the signs "<", ">", "≥", "≤".
class InequalityTokens final : public ExpressionWithTokenArray {
public:
    using ExpressionWithTokenArray::ExpressionWithTokenArray;
    InequalityTokens() = default;

    std::unique_ptr<ExpressionWithTokenArray> copy() const override;

    /// The sign; "<" at first.
    const std::string& inequalityType() const { return m_type; }
    /// A token that is none of the four signs changes nothing.
    void setInequalityTypeWithToken(const Token& token) override;
    static bool isInequalitySign(std::string_view text);

    /// The inequality as read: the line, the sign and "0", such as "x+y<0"; empty for an empty line.
    std::string inequalityString() const;
    /// The comparison with 0 as a tree; an empty line gives the empty expression, a line that cannot be
    /// read its error.
    std::shared_ptr<const Expression> inequality() const;

    /// Whether the line as it now stands has been tried as a polynomial. Every edit, every change of the
    /// sign and of a constant that the line may hold makes this false; so does copying.
    bool hasBeenCheckedForPolynomial() const;
    void setHasBeenCheckedForPolynomial(bool checked);

    /// The line's own form and the sign under "InequalityTypeKey".
    void encodeWithCoder(KeyedArchiver& coder) const override;
    /// A missing or unknown sign reads as "<".
    static InequalityTokens decode(const KeyedUnarchiver& coder);

private:
    std::string m_type = "<";
    std::shared_ptr<const Expression> m_checkedTree; // the tree that was checked; edits make another
};

} // namespace velmora
