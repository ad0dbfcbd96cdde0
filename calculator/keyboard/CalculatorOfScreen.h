#pragma once

#include <functional>

namespace velmora {

class KeyboardViewController;
class NavigationController;

/// Puts the result of a tool or a choice from a list into a calculator line and shows that line: the
/// one below on the tool's own stack, where it was opened from there, otherwise the calculator tab's.
/// False, with nothing done, when there is neither.
bool returnToCalculator(NavigationController* stack,
                        const std::function<void(KeyboardViewController&)>& insert);

} // namespace velmora
