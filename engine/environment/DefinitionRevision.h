#pragma once

#include <cstdint>

namespace velmora {

/// Counts the changes to everything that constants are made of. A line that holds a constant's tree
/// compares the count with that of its parse, and parses anew when a definition may have changed.
std::uint64_t definitionRevision();

/// To be called after every edit of a line or a list.
void definitionsChanged();

} // namespace velmora
