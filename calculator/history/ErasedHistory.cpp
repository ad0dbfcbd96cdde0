#include "calculator/history/ErasedHistory.h"

#include "engine/lines/ExpressionList.h"
#include "platform/machine/Timer.h"

#include <iterator>
#include <utility>

namespace velmora {

namespace {

std::vector<std::unique_ptr<ExpressionWithTokenArray>> copiedRows(const ExpressionList& history) {
    std::vector<std::unique_ptr<ExpressionWithTokenArray>> rows;
    for (int row = 0; row < history.nExpressions(); ++row) {
        rows.push_back(history.entryAtIndex(row)->copy());
    }
    return rows;
}

} // namespace

bool ErasedHistory::erase(ExpressionList& history) {
    if (history.nExpressions() == 0) {
        return false;
    }
    m_rows = copiedRows(history);
    history.reset();
    m_timer = startTimer(kSecondsKept, TimerKind::OneShot, [this] { m_rows.clear(); });
    return true;
}

bool ErasedHistory::bringBack(ExpressionList& history) {
    if (m_rows.empty()) {
        return false;
    }
    auto rows = std::exchange(m_rows, {});
    m_timer = {};
    auto newer = copiedRows(history);
    rows.insert(rows.end(), std::make_move_iterator(newer.begin()), std::make_move_iterator(newer.end()));
    history.reset();
    const auto most = static_cast<std::size_t>(history.maxExpressions());
    for (std::size_t row = rows.size() > most ? rows.size() - most : 0; row < rows.size(); ++row) {
        history.setExpressionAtIndex(history.nExpressions(), *rows[row], false);
    }
    return true;
}

} // namespace velmora
