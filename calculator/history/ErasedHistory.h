#pragma once

#include "engine/lines/ExpressionWithTokenArray.h"
#include "platform/events/Subscription.h"

#include <memory>
#include <vector>

namespace velmora {

class ExpressionList;

/// Clears the history and keeps its rows for a while, to bring them back.
class ErasedHistory {
public:
    static constexpr double kSecondsKept = 6;

    /// False when there was no row to clear.
    bool erase(ExpressionList& history);
    /// Puts the rows back before those that have come since; as many as the history holds, the newest.
    /// False when they are gone.
    bool bringBack(ExpressionList& history);

private:
    std::vector<std::unique_ptr<ExpressionWithTokenArray>> m_rows;
    Subscription m_timer;
};

} // namespace velmora
