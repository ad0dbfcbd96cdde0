#pragma once

#include "calculator/model/HalfTypedLine.h"

#include <optional>

namespace velmora {

class ExpressionList;

/// Walks back through the lines of the history and forth again to the line that was being typed.
class HistoryRecall {
public:
    /// The line to show instead of the present one: the one before it (-1) or behind it (1). Nothing at
    /// either end.
    std::optional<HalfTypedLine> move(int direction, const ExpressionList& history, HalfTypedLine present);
    /// The present line is no longer one that was recalled.
    void forget() { m_back = 0; }

private:
    int m_back = 0; // the rows from the end of the history to the line shown; 0 is the line being typed
    HalfTypedLine m_typed;
};

} // namespace velmora
