#pragma once

#include "platform/events/Signal.h"
#include "platform/files/PropertyList.h"

#include <functional>
#include <string>
#include <string_view>

namespace velmora {

/// An event announced to whoever listens.
struct Notification {
    std::string name{};
    /// Whom it is about, for comparison only; may be null.
    const void* object = nullptr;
    PropertyDictionary userInfo{};
};

/// Delivers notifications at once, to observers in the order in which they were added.
/// During a delivery observers may come and go: one that is removed hears nothing more, one that is added
/// hears the next notification.
class NotificationCentre {
public:
    using Handler = std::function<void(const Notification&)>;

    /// The centre that the whole program shares.
    static NotificationCentre& defaultCentre();

    /// Calls the handler for each notification of that name, as long as the subscription lives.
    /// With an object given, only for notifications about it.
    [[nodiscard]] Subscription addObserver(std::string_view name, Handler handler,
                                           const void* object = nullptr);

    void post(std::string_view name, const void* object = nullptr, PropertyDictionary userInfo = {});

    /// Removes every observer.
    void reset() { m_signal = {}; }

private:
    Signal<const Notification&> m_signal;
};

} // namespace velmora
