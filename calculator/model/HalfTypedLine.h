#pragma once

#include "engine/lines/TokenElement.h"

#include <string>

namespace velmora {

class KeyedArchiver;
class KeyedUnarchiver;

/// Where the user stands in a line: the cursor, and what is typed there but is no token yet.
struct LinePlace {
    int cursor = 0;
    std::string typed;
    bool operator==(const LinePlace&) const = default;
};

/// A line as it stands while it is typed.
struct HalfTypedLine {
    TokenArray tokens;
    LinePlace place;

    void encodeWithCoder(KeyedArchiver& coder) const;
    /// A cursor outside the line goes to its end; what is no valid text is left out.
    static HalfTypedLine decode(const KeyedUnarchiver& coder);
};

} // namespace velmora
