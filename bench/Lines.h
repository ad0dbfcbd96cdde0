#pragma once

#include "engine/lines/TokenElement.h"
#include "engine/numbers/ComplexValue.h"

#include <string>
#include <vector>

namespace velmora::bench {

/// One line under measurement: as typed here, as muParser spells it, and written out by hand.
struct Line {
    std::string name;
    TokenArray tokens;
    std::string muParserText;
    ComplexValue (*twin)(ComplexValue);
};

/// The lines over which speed is judged, all with the variable x.
const std::vector<Line>& lines();

/// sqrt(x)+ln(x+20), meant for negative x, where the value is complex.
const Line& complexLine();

/// The tokens of a text whose tokens are separated by blanks.
TokenArray tokensOf(const std::string& text);

} // namespace velmora::bench
