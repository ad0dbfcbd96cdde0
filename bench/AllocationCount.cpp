#include "bench/AllocationCount.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace {

long s_heldBytes = 0;

long blockSize(void* block) { return static_cast<long>(malloc_usable_size(block) + sizeof(std::size_t)); }

} // namespace

void* operator new(std::size_t size) {
    void* block = std::malloc(size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    s_heldBytes += blockSize(block);
    return block;
}

void operator delete(void* block) noexcept {
    if (block != nullptr) {
        s_heldBytes -= blockSize(block);
        std::free(block);
    }
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace velmora::bench {

long heldBytes() { return s_heldBytes; }

} // namespace velmora::bench
