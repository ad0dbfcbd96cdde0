#pragma once

#include <functional>
#include <utility>

namespace velmora {

/// Holds a registration (an observer, a timer) and ends it when destroyed.
class Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> cancel) : m_cancel(std::move(cancel)) {}
    Subscription(Subscription&& other) noexcept : m_cancel(std::exchange(other.m_cancel, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            cancel();
            m_cancel = std::exchange(other.m_cancel, nullptr);
        }
        return *this;
    }
    ~Subscription() { cancel(); }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    /// Ends the registration now; a second call does nothing.
    void cancel() {
        if (const auto action = std::exchange(m_cancel, nullptr)) {
            action();
        }
    }

private:
    std::function<void()> m_cancel;
};

} // namespace velmora
