#include "engine/numbers/ShortNumber.h"

#include <array>
#include <charconv>

namespace velmora {

std::string shortNumber(double number, int digits) {
    constexpr std::size_t longest = 32;
    std::array<char, longest> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            std::chars_format::general, digits);
    return {buffer.data(), end};
}

} // namespace velmora
