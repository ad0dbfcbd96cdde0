#pragma once

#include "platform/files/PropertyList.h"

#include <cstdint>

namespace velmora {

/// The CRC-32 (of zlib) of what a dictionary holds, whatever form its file has: the same for the list and
/// for what is read back from its bytes.
std::uint32_t contentDigest(const PropertyDictionary& dictionary);

} // namespace velmora
