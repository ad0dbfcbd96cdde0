#include "engine/tree/TargetAndIndex.h"

#include "engine/environment/Environment.h"

#include <charconv>
#include <limits>

namespace velmora {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

} // namespace

bool TargetAndIndex::namesSlot(std::string_view token) {
    return token.size() >= 2 && token[0] == 'y' && isDigit(token[1]);
}

std::optional<TargetAndIndex> TargetAndIndex::newTargetAndIndexWithToken(std::string_view token) {
    if (!namesSlot(token)) {
        return std::nullopt;
    }
    int number = 0;
    const auto [end, error] = std::from_chars(token.data() + 1, token.data() + token.size(), number);
    if (error == std::errc::result_out_of_range) {
        number = std::numeric_limits<int>::max(); // names a slot that no list has
    }
    return TargetAndIndex{Environment::current().equations(), number - 1};
}

} // namespace velmora
