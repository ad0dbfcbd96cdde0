#pragma once

#include "calculator/model/HalfTypedLine.h"

#include <cstddef>
#include <deque>
#include <vector>

namespace velmora {

/// One replacement of tokens in a line.
struct LineEdit {
    int position = 0;
    TokenArray removed;
    TokenArray inserted;
};

/// What one action of the user did to a line.
struct LineStep {
    std::vector<LineEdit> edits; ///< in the order in which they were made
    LinePlace before;
    LinePlace after;
};

/// The steps of a line that can be taken back and made again.
class LineSteps {
public:
    static constexpr std::size_t kMost = 200;

    /// A new step; those taken back before it are gone. Beyond the limit the oldest goes.
    void add(LineStep step);
    /// The step to take back or to make again now; nothing when there is none.
    const LineStep* takeBack();
    const LineStep* makeAgain();
    void clear();

private:
    std::deque<LineStep> m_steps;
    std::size_t m_made = 0; // how many of them are in force
};

} // namespace velmora
