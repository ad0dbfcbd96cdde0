#pragma once

#include "engine/intervals/DecoratedInterval.h"

namespace velmora {

// Powers, roots and logarithms to a base, of which both inputs are intervals.

DecoratedInterval powerInterval(const DecoratedInterval& base, const DecoratedInterval& exponent);
DecoratedInterval nthRootInterval(const DecoratedInterval& degree, const DecoratedInterval& radicand);
DecoratedInterval logarithmInterval(const DecoratedInterval& base, const DecoratedInterval& number);

} // namespace velmora
