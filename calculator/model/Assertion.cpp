#include "calculator/model/Assertion.h"

#include "platform/text/Log.h"

#include <string>

namespace velmora {

void assertionFailure(std::string_view text) { log("Assertion failure: " + std::string(text)); }

} // namespace velmora
