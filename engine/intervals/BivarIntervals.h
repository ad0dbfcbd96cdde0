#pragma once

#include "engine/functions/BivarTable.h"
#include "engine/intervals/DecoratedInterval.h"

namespace velmora {

/// The values of an operation, a function of two inputs or a comparison (1 where it holds, else 0).
using BivarIntervalRule = DecoratedInterval (*)(const DecoratedInterval& a, const DecoratedInterval& b);

BivarIntervalRule bivarIntervalRule(BivarType type);

} // namespace velmora
