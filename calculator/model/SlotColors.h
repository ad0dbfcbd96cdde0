#pragma once

#include "platform/screens/Color.h"

#include <cstddef>

namespace velmora {

/// The colour of the curve in a slot (0 to 3) of whatever list is drawn: functions, polar curves or
/// parametric pairs. The slots repeat beyond the fourth.
Color slotColor(std::size_t slot);

} // namespace velmora
