#pragma once

#include "engine/intervals/DecoratedInterval.h"

namespace velmora {

// The four operations, negation and whole powers on intervals. Ends are rounded outward unless they are
// exact: sums by Knuth's two-sum, products and quotients where their numbers are short. Points at which the
// calculator's own operation is undefined (a division by zero, ∞ − ∞, 0 · ∞) lower the decoration.

DecoratedInterval negative(const DecoratedInterval& a);
DecoratedInterval sum(const DecoratedInterval& a, const DecoratedInterval& b);
DecoratedInterval difference(const DecoratedInterval& a, const DecoratedInterval& b);
DecoratedInterval product(const DecoratedInterval& a, const DecoratedInterval& b);
DecoratedInterval quotient(const DecoratedInterval& a, const DecoratedInterval& b);
DecoratedInterval square(const DecoratedInterval& a);
DecoratedInterval cube(const DecoratedInterval& a);

} // namespace velmora
