#pragma once

namespace velmora {

/// What a keyboard screen edits: its mode, on which the keys, the entry line and the saving depend.
enum Entering : int {
    kEnteringCalculatorLine = 0,
    kEnteringFunction = 1,
    kEnteringParametric = 2,
    kEnteringPolar = 3,
    kEnteringInequality = 4,
    kEnteringImpliedFunction = 5,
};

} // namespace velmora
