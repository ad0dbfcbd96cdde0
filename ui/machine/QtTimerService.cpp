#include "ui/machine/QtTimerService.h"

#include "platform/events/ActionScope.h"

#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <utility>

namespace velmora {

namespace {

int milliseconds(double seconds, TimerKind kind) {
    constexpr double longest = std::numeric_limits<int>::max();
    const double shortest = kind == TimerKind::Repeating ? 1 : 0;
    const double wanted = std::isnan(seconds) ? 0 : std::ceil(seconds * 1000);
    return static_cast<int>(std::clamp(wanted, shortest, longest));
}

} // namespace

Subscription QtTimerService::start(double seconds, TimerKind kind, std::function<void()> callback) {
    auto timer = std::make_shared<QTimer>();
    timer->setSingleShot(kind == TimerKind::OneShot);
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [callback = std::move(callback)] {
        const ActionScope action;
        callback();
    });
    timer->start(milliseconds(seconds, kind));
    // The subscription may end within the callback, while the timer is still being handled.
    return Subscription([timer]() mutable {
        timer->stop();
        QTimer::singleShot(0, [kept = std::move(timer)] {});
    });
}

} // namespace velmora
