#include "platform/machine/Clock.h"

#include <chrono>
#include <ctime>

namespace velmora {

namespace {

class MachineClock final : public Clock {
public:
    double monotonicSeconds() const override {
        return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }

    CalendarTime now() const override {
        const std::time_t seconds = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
        std::tm local{};
        localtime_r(&seconds, &local);
        return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                local.tm_hour,        local.tm_min,     local.tm_sec};
    }
};

} // namespace

const Clock& currentClock() {
    static MachineClock machine;
    return ClockScope::installedOr(machine);
}

} // namespace velmora
