#pragma once

#include "graphing/axes/HashMarks.h"

#include <vector>

namespace velmora {

/// The numbers of both axes as they are written: wholly on screen, beside their ticks and not over each
/// other. One that has no room, or would stand in a place that is taken, is left out.
std::vector<LabelRecord> placedNumbers(const HashMarks& vertical, const HashMarks& horizontal, Size area,
                                       const std::vector<Rect>& taken);

/// Where a label's text stands within its frame, at the size in which it is written.
Rect textRect(const LabelRecord& label);

} // namespace velmora
