#pragma once

#include <string>

namespace velmora {

class NavigationController;

/// Opens a list of functions or constants by its name, on a stack that may be missing (logged).
void openFunctionList(NavigationController* stack, const std::string& listName, bool variableIsDefined);

/// Opens the unit converter. False, logged, when it cannot be opened.
bool openUnitConverter(NavigationController* stack);

} // namespace velmora
