#include "platform/events/ActionScope.h"

#include <utility>
#include <vector>

namespace velmora {

namespace {

struct ActionState {
    int depth = 0;
    std::vector<std::shared_ptr<const void>> kept;
};

ActionState& actionState() {
    static ActionState state;
    return state;
}

} // namespace

ActionScope::ActionScope() { ++actionState().depth; }

ActionScope::~ActionScope() {
    ActionState& state = actionState();
    if (--state.depth == 0) {
        // Taken out first: what is destroyed may itself handle an event.
        const auto released = std::exchange(state.kept, {});
    }
}

bool keepUntilActionEnds(std::shared_ptr<const void> object) {
    ActionState& state = actionState();
    if (state.depth == 0) {
        return false;
    }
    state.kept.push_back(std::move(object));
    return true;
}

} // namespace velmora
