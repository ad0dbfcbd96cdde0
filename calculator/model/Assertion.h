#pragma once

#include <string_view>

namespace velmora {

/// Reports a broken promise between the program's own functions. The line is logged and the program goes
/// on: each caller states the value it falls back to.
void assertionFailure(std::string_view text);

} // namespace velmora
