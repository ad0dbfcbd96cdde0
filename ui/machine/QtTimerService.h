#pragma once

#include "platform/machine/Timer.h"

namespace velmora {

/// Timers of Qt's event loop.
class QtTimerService final : public TimerService {
public:
    [[nodiscard]] Subscription start(double seconds, TimerKind kind, std::function<void()> callback) override;
};

} // namespace velmora
