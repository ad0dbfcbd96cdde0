#pragma once

#include "platform/events/Subscription.h"
#include "platform/machine/InstallScope.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace velmora {

enum class TimerKind { OneShot, Repeating };

/// Calls back after some time, on the program's one thread and never from within the call that starts it.
class TimerService {
public:
    virtual ~TimerService() = default;

    /// Calls back after the seconds have passed, and again after each such time when repeating. The timer
    /// stops when the subscription is destroyed. A delay that is negative or not a number counts as 0;
    /// a repeating timer waits at least a millisecond.
    [[nodiscard]] virtual Subscription start(double seconds, TimerKind kind,
                                             std::function<void()> callback) = 0;
};

/// A timer service whose time passes by calls.
class ManualTimerService final : public TimerService {
public:
    ManualTimerService();
    ~ManualTimerService() override;
    [[nodiscard]] Subscription start(double seconds, TimerKind kind, std::function<void()> callback) override;

    /// Lets time pass and runs what falls due, earliest first, at equal times in the order of starting.
    /// Timers started by a callback run too when they fall due within the same span; one of delay 0 that a
    /// callback starts waits for the next call.
    void advance(double seconds);

    /// How many timers are waiting.
    std::size_t pendingCount() const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

using TimerServiceScope = InstallScope<TimerService>;

/// Starts a timer of the service in force. While none is installed the timer never fires.
[[nodiscard]] Subscription startTimer(double seconds, TimerKind kind, std::function<void()> callback);

} // namespace velmora
