#include "calculator/model/SlotColors.h"

#include <array>

namespace velmora {

Color slotColor(std::size_t slot) {
    constexpr std::array kColors{
        Color{1.0, 0.17, 0.0, 1.0},
        Color{0.0, 0.55, 1.0, 1.0},
        Color{0.12, 0.565, 0.095, 1.0},
        Color{0.615, 0.25, 0.67, 1.0},
    };
    return kColors[slot % kColors.size()];
}

} // namespace velmora
