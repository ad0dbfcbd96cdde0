#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// The value and the unit of a constant that a list ships, as its row shows them: of "g=9.80665" with the
/// hint "standard acceleration of gravity, m/s²" the text "9.80665 m/s²". The unit is what follows the hint's
/// last comma; an uncertain last digit counts like any other. Empty for an entry that states no number.
std::string listedConstantValue(std::string_view content, std::string_view hint);

} // namespace velmora
