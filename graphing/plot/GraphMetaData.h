#pragma once

#include <array>
#include <cstddef>

namespace velmora {

/// How many equations the graph shows at once.
inline constexpr std::size_t kGraphSlots = 4;

/// What became of one equation in the frame just drawn.
struct GraphMetaData {
    bool wasGraphed = false;          ///< two neighbouring samples at least were real
    bool wasSometimesComplex = false; ///< a sample was not
};

using GraphMetaDataArray = std::array<GraphMetaData, kGraphSlots>;

} // namespace velmora
