#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Why a typed quantity cannot be taken as it stands, as a sentence for the user; empty for one that can:
/// digits with or without a point and a sign, and an exponent behind "E". The empty text and a lone minus
/// stand for one unit and are fine.
std::string faultOfTypedQuantity(std::string_view entry);

} // namespace velmora
