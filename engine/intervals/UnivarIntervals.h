#pragma once

#include "engine/environment/AngleMode.h"
#include "engine/functions/UnivarTable.h"
#include "engine/intervals/DecoratedInterval.h"

namespace velmora {

/// How one function acts on intervals.
struct UnivarIntervalRow {
    /// The values over the inputs `a`, which are real and not empty.
    using Rule = DecoratedInterval (*)(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode);

    UnivarType type;
    Rule rule;
    RealInterval domain{}; ///< the real inputs that have a real value
    RealInterval values{}; ///< no true value lies outside
    int ulps = 1;          ///< how many units in the last place the computed values may be off
};

const UnivarIntervalRow& univarIntervalRow(UnivarType type);

/// The values of the function over `a`, whatever is known of that.
DecoratedInterval univarInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode);

/// The interval widened by so many units in the last place at both ends, within the bounds of the values.
DecoratedInterval widened(DecoratedInterval a, int ulps, const RealInterval& values = {});

} // namespace velmora
