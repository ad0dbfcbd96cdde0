#pragma once

#include "calculator/lists/FunctionList.h"

namespace velmora {

/// Prepares a loaded list for showing, once:
/// - an entry whose content begins with "&&&&" needs a variable; without one it is removed;
/// - an entry whose content begins with "FFFF" only keeps the place for a greeting, so a greeting never
///   takes the place of a function; it is removed when there is none today;
/// - the markers themselves, and "$$$$" wherever it stands, are removed from the texts.
/// There is a greeting on the days of specialDate, and otherwise now and then by chance.
FunctionList trimFunctionList(const FunctionList& list, bool variableIsDefined);

/// What the day in a week from now is: 1 a Friday the 13th, 2 the 15th of March, 3 the 1st of January,
/// 4 the 29th of February, 0 none of these. A week ahead, so that the greeting comes in time.
int specialDate();

} // namespace velmora
