#pragma once

#include "engine/intervals/DecoratedInterval.h"

namespace velmora {

// The four operations, negation and whole powers on intervals. Ends are rounded outward by the exact error of
// each operation (Dekker 1971, Knuth's two-sum), so exact results stay exact and no true value is lost.
// Points at which the calculator's own operation is undefined (a division by zero, ∞ − ∞, 0 · ∞) lower the
// decoration.

DecoratedInterval negative(const DecoratedInterval& a);
DecoratedInterval sum(const DecoratedInterval& a, const DecoratedInterval& b);
DecoratedInterval difference(const DecoratedInterval& a, const DecoratedInterval& b);
DecoratedInterval product(const DecoratedInterval& a, const DecoratedInterval& b);
DecoratedInterval quotient(const DecoratedInterval& a, const DecoratedInterval& b);
DecoratedInterval square(const DecoratedInterval& a);
DecoratedInterval cube(const DecoratedInterval& a);

} // namespace velmora
