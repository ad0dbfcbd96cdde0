#pragma once

#include "platform/screens/Geometry.h"

#include <vector>

namespace velmora {

/// One finger on a view, or the pressed mouse.
struct Touch {
    int id = 0; ///< stays the same from the finger's coming to its going
    Point location;
    /// How many taps in a row, at one place, this touch is or ends.
    int tapCount = 1;
};

/// All fingers of one event.
using Touches = std::vector<Touch>;

} // namespace velmora
