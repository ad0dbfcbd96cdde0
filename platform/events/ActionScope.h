#pragma once

#include <memory>

namespace velmora {

/// Marks the handling of one event (a tap, a key, a timer). What is handed to keepUntilActionEnds meanwhile
/// lives until the outermost scope ends, so a screen may close itself and still finish what it was doing.
class ActionScope {
public:
    ActionScope();
    ~ActionScope();
    ActionScope(const ActionScope&) = delete;
    ActionScope& operator=(const ActionScope&) = delete;
};

/// Keeps an object alive until the outermost ActionScope ends.
/// False, with nothing kept, when no event is being handled.
bool keepUntilActionEnds(std::shared_ptr<const void> object);

} // namespace velmora
