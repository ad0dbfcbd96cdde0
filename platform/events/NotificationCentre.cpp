#include "platform/events/NotificationCentre.h"

#include <utility>

namespace velmora {

NotificationCentre& NotificationCentre::defaultCentre() {
    static NotificationCentre centre;
    return centre;
}

Subscription NotificationCentre::addObserver(std::string_view name, Handler handler, const void* object) {
    return m_signal.subscribe(
        [name = std::string(name), handler = std::move(handler), object](const Notification& notification) {
            if (notification.name == name && (!object || notification.object == object)) {
                handler(notification);
            }
        });
}

void NotificationCentre::post(std::string_view name, const void* object, PropertyDictionary userInfo) {
    m_signal.emit(Notification{std::string(name), object, std::move(userInfo)});
}

} // namespace velmora
