#pragma once

#include "platform/events/Subscription.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace velmora {

/// A list of listeners to one kind of event. While it is being emitted, listeners may be added (they hear
/// the next event) or removed (they hear nothing more), and the signal itself may be destroyed.
template <class... Arguments> class Signal {
public:
    using Listener = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription subscribe(Listener listener) {
        auto entry = std::make_shared<Entry>(Entry{std::move(listener)});
        m_entries->push_back(entry);
        return Subscription([entry, list = std::weak_ptr<Entries>(m_entries)] {
            entry->active = false;
            if (const auto entries = list.lock()) {
                std::erase(*entries, entry);
            }
        });
    }

    void emit(Arguments... arguments) const {
        const Entries snapshot = *m_entries;
        for (const auto& entry : snapshot) {
            if (entry->active) {
                entry->listener(arguments...);
            }
        }
    }

private:
    struct Entry {
        Listener listener;
        bool active = true;
    };
    using Entries = std::vector<std::shared_ptr<Entry>>;

    std::shared_ptr<Entries> m_entries = std::make_shared<Entries>();
};

} // namespace velmora
