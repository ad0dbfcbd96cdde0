#pragma once

namespace velmora {

/// What became of one equation in the frame just drawn.
struct GraphMetaData {
    bool wasGraphed = false;          ///< two neighbouring samples at least were real
    bool wasSometimesComplex = false; ///< a sample was not
};

} // namespace velmora
