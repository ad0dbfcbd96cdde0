#include "platform/machine/RandomSource.h"

#include <random>
#include <utility>

namespace velmora {

namespace {

std::function<std::uint32_t()>& sourceInForce() {
    static std::function<std::uint32_t()> source;
    return source;
}

std::uint32_t machineRandomNumber() {
    // One 32-bit seed would reach only a sliver of the generator's states.
    static std::mt19937 generator = [] {
        std::random_device device;
        std::seed_seq seed{device(), device(), device(), device(), device(), device(), device(), device()};
        return std::mt19937(seed);
    }();
    return static_cast<std::uint32_t>(generator());
}

} // namespace

std::uint32_t randomNumber() {
    const auto& source = sourceInForce();
    return source ? source() : machineRandomNumber();
}

RandomSourceScope::RandomSourceScope(std::function<std::uint32_t()> source)
    : m_former(std::exchange(sourceInForce(), std::move(source))) {}

RandomSourceScope::~RandomSourceScope() { sourceInForce() = std::move(m_former); }

} // namespace velmora
