#pragma once

namespace velmora::bench {

/// The bytes that the program and its libraries hold from operator new at this moment, with what the heap
/// adds to each block. The heap's own statistics count blocks kept for reuse as held.
long heldBytes();

} // namespace velmora::bench
