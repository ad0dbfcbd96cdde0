#include "calculator/history/HistoryRecall.h"

#include "engine/lines/ExpressionList.h"

#include <algorithm>
#include <utility>

namespace velmora {

std::optional<HalfTypedLine> HistoryRecall::move(int direction, const ExpressionList& history,
                                                 HalfTypedLine present) {
    const int shown = std::min(m_back, history.nExpressions()); // the history may have been cleared
    const int back = std::clamp(shown - direction, 0, history.nExpressions());
    if (back == shown) {
        return std::nullopt;
    }
    if (shown == 0) {
        m_typed = std::move(present);
    }
    m_back = back;
    if (back == 0) {
        return m_typed;
    }
    const TokenArray& tokens = *history.expressionTokenArray(history.nExpressions() - back);
    return HalfTypedLine{tokens, {static_cast<int>(tokens.size()), {}}};
}

} // namespace velmora
