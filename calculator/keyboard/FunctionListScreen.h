#pragma once

#include <string>

namespace velmora {

/// What a list screen can be told by whoever opens it through the screen registry.
class FunctionListScreen {
public:
    virtual ~FunctionListScreen() = default;

    /// The name of the list to show ("Functions").
    virtual void setFunctionListName(std::string name) = 0;
    /// Whether entries that need a variable are offered.
    virtual void setVariableIsDefined(bool defined) = 0;
};

} // namespace velmora
