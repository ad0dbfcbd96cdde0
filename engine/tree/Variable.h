#pragma once

#include "engine/tree/DescriptionWriter.h"
#include "engine/tree/Expression.h"

#include <string_view>

namespace velmora {

/// A variable leaf. Type 0 is the independent variable, written "x", "t" or "θ"; 1 is "y"; 2 is none.
class Variable final : public Expression {
public:
    explicit Variable(int type) : m_variable(type) {
        m_leaf = Leaf::Variable;
        m_variableIndex = static_cast<std::uint8_t>(type == 0 || type == 1 ? type : 2);
    }
    /// The type of a variable's text, 2 for any other text.
    static int typeWithText(std::string_view text) {
        if (text == "x" || text == "t" || text == "θ") {
            return 0;
        }
        return text == "y" ? 1 : 2;
    }

    int variable() const { return m_variable; }
    bool canBeFollowedByImpliedMultiplication() const override { return true; }
    /// Any type but the two named ones reads "xD"; intended, old descriptions are compared with it.
    void describe(DescriptionWriter& writer) const override {
        writer << (m_variable == 0 ? "x" : m_variable == 1 ? "y" : "xD");
    }

private:
    int m_variable;
};

} // namespace velmora
