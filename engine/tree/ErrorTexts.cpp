#include "engine/tree/ErrorTexts.h"

namespace velmora {

const std::string& unableToParseText() {
    static const std::string text(kUnableToParse);
    return text;
}

} // namespace velmora
