#pragma once

#include "engine/intervals/UnivarIntervals.h"

namespace velmora {

// The periodic functions on intervals, in radians or degrees. An angle is taken to lie on an extreme or a
// pole when it does so to within its own rounding.

DecoratedInterval sineInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode);
DecoratedInterval cosineInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode);
DecoratedInterval tangentInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode);
DecoratedInterval cosecantInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode);
DecoratedInterval secantInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode);
DecoratedInterval cotangentInterval(const UnivarIntervalRow& row, const DecoratedInterval& a, AngleMode mode);

} // namespace velmora
