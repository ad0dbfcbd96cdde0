#pragma once

#include <functional>
#include <string>
#include <vector>

namespace velmora {

class KeyboardViewController;
class NavigationController;

/// Puts the result of a tool or a choice from a list into a calculator line and shows that line: the
/// one below on the tool's own stack, where it was opened from there, otherwise the calculator tab's.
/// False, with nothing done, when there is neither.
bool returnToCalculator(NavigationController* stack,
                        const std::function<void(KeyboardViewController&)>& insert);

/// The variables that the line may hold to which a screen on that stack returns.
std::vector<std::string> variablesOfCalculatorLine(const NavigationController* stack);

} // namespace velmora
