#include "platform/machine/Timer.h"

#include "platform/events/ActionScope.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

namespace velmora {

namespace {

constexpr double kShortestRepeat = 0.001;

double usableDelay(double seconds, TimerKind kind) {
    const double shortest = kind == TimerKind::Repeating ? kShortestRepeat : 0;
    return seconds > shortest ? seconds : shortest; // also for what is not a number
}

} // namespace

struct ManualTimerService::State {
    struct Pending {
        double due;
        std::uint64_t turn; // decides between equal times
        double interval;
        TimerKind kind;
        std::shared_ptr<const std::function<void()>> callback;
        std::uint64_t startedInAdvance;
    };
    double now = 0;
    std::uint64_t nextTurn = 1;
    std::uint64_t nextIdentifier = 1;
    std::uint64_t advances = 0;
    bool advancing = false;
    std::map<std::uint64_t, Pending> pending;

    /// The next timer to run up to a moment; the end when there is none.
    std::map<std::uint64_t, Pending>::iterator nextDue(double moment) {
        auto next = pending.end();
        for (auto timer = pending.begin(); timer != pending.end(); ++timer) {
            const Pending& candidate = timer->second;
            // Otherwise a callback that starts a timer without delay would never let the time go on.
            const bool waits = candidate.interval == 0 && candidate.startedInAdvance == advances;
            if (candidate.due <= moment && !waits &&
                (next == pending.end() ||
                 std::pair(candidate.due, candidate.turn) < std::pair(next->second.due, next->second.turn))) {
                next = timer;
            }
        }
        return next;
    }
};

ManualTimerService::ManualTimerService() : m_state(std::make_shared<State>()) {}
ManualTimerService::~ManualTimerService() = default;

Subscription ManualTimerService::start(double seconds, TimerKind kind, std::function<void()> callback) {
    const double delay = usableDelay(seconds, kind);
    const std::uint64_t identifier = m_state->nextIdentifier++;
    m_state->pending.emplace(
        identifier, State::Pending{m_state->now + delay, m_state->nextTurn++, delay, kind,
                                   std::make_shared<const std::function<void()>>(std::move(callback)),
                                   m_state->advancing ? m_state->advances : 0});
    return Subscription([identifier, service = std::weak_ptr<State>(m_state)] {
        if (const auto state = service.lock()) {
            state->pending.erase(identifier);
        }
    });
}

void ManualTimerService::advance(double seconds) {
    const std::shared_ptr<State> state = m_state; // a callback may destroy the service
    const double end = state->now + (seconds > 0 ? seconds : 0);
    ++state->advances;
    state->advancing = true;
    for (auto timer = state->nextDue(end); timer != state->pending.end(); timer = state->nextDue(end)) {
        State::Pending& due = timer->second;
        state->now = std::max(state->now, due.due);
        const auto callback = due.callback;
        if (due.kind == TimerKind::Repeating) {
            due.due += due.interval;
            due.turn = state->nextTurn++;
        } else {
            state->pending.erase(timer);
        }
        const ActionScope action;
        if (*callback) {
            (*callback)();
        }
    }
    state->advancing = false;
    state->now = std::max(state->now, end);
}

std::size_t ManualTimerService::pendingCount() const { return m_state->pending.size(); }

Subscription startTimer(double seconds, TimerKind kind, std::function<void()> callback) {
    static ManualTimerService standing;
    return TimerServiceScope::installedOr(standing).start(seconds, kind, std::move(callback));
}

} // namespace velmora
