#pragma once

#include <string_view>

namespace velmora {

/// Takes from the front of a text what stands before the separator, and the separator with it; all of the
/// text when there is none.
inline std::string_view takeUntil(std::string_view& text, char separator) {
    const std::size_t end = text.find(separator);
    const std::string_view taken = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    return taken;
}

} // namespace velmora
