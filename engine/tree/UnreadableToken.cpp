#include "engine/tree/UnreadableToken.h"

#include "engine/tree/BivarFunction.h"
#include "engine/tree/ExpressionLeaves.h"

#include <utility>
#include <vector>

namespace velmora {

namespace {

/// A line read from left to right, which tells at each node whether any line goes on like this. The parser,
/// which looks at the whole line, cannot say.
class Reader {
public:
    /// Whether the node can stand here.
    bool reads(const Expression& node) {
        switch (node.kind()) {
        case Expression::Kind::RightParen:
            return closes();
        case Expression::Kind::Comma:
            return separates();
        case Expression::Kind::TwoInputs:
            if (!static_cast<const BivarFunction&>(node).isCommaExpectingBivarFunction()) {
                return !std::exchange(m_wantsOperand, true);
            }
            break;
        default:
            break;
        }
        if (!m_wantsOperand && !m_impliesProduct) {
            return false;
        }
        if (node.needsToBePairedWithARightParen()) {
            m_commasOwed.push_back(commasOf(node));
        }
        const bool isSign =
            node.kind() == Expression::Kind::OneInput; // or an opener: both go before an operand
        m_wantsOperand = isSign || node.needsToBePairedWithARightParen();
        m_impliesProduct = node.canBeFollowedByImpliedMultiplication();
        return !node.hasError() || m_wantsOperand;
    }

    bool isComplete() const { return !m_wantsOperand && m_commasOwed.empty(); }

private:
    static int commasOf(const Expression& opener) {
        switch (opener.kind()) {
        case Expression::Kind::TwoInputs:
            return 1;
        case Expression::Kind::ThreeInputs:
            return 2;
        default:
            return 0;
        }
    }
    bool closes() {
        if (m_wantsOperand || m_commasOwed.empty() || m_commasOwed.back() > 0) {
            return false;
        }
        m_commasOwed.pop_back();
        m_impliesProduct = true;
        return true;
    }
    bool separates() {
        if (m_wantsOperand || m_commasOwed.empty() || m_commasOwed.back() == 0) {
            return false;
        }
        --m_commasOwed.back();
        m_wantsOperand = true;
        return true;
    }

    std::vector<int> m_commasOwed; ///< by each open parenthesis, the innermost at the end
    bool m_wantsOperand = true;
    bool m_impliesProduct = false; ///< between what was read and another operand
};

} // namespace

std::optional<std::size_t> firstUnreadableToken(std::span<const TokenElement> tokens) {
    if (tokens.empty()) {
        return std::nullopt;
    }
    std::vector<std::size_t> positions;
    const Leaves leaves = leavesOfTokens(tokens, &positions);
    Reader reader;
    for (std::size_t i = 0; i < leaves.nodes.size() && positions[i] < leaves.errorPosition; ++i) {
        if (!reader.reads(*leaves.nodes[i])) {
            return positions[i];
        }
    }
    if (!leaves.error.empty()) {
        return leaves.errorPosition;
    }
    return reader.isComplete() ? std::nullopt : std::optional(tokens.size());
}

} // namespace velmora
