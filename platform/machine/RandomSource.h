#pragma once

#include <cstdint>
#include <functional>

namespace velmora {

/// A uniformly random 32-bit number from the source in force (the machine's, unless a test installs one).
std::uint32_t randomNumber();

/// Installs another source of random numbers for the length of a scope.
class RandomSourceScope {
public:
    explicit RandomSourceScope(std::function<std::uint32_t()> source);
    ~RandomSourceScope();
    RandomSourceScope(const RandomSourceScope&) = delete;
    RandomSourceScope& operator=(const RandomSourceScope&) = delete;

private:
    std::function<std::uint32_t()> m_former;
};

} // namespace velmora
