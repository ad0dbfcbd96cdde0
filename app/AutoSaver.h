#pragma once

#include "calculator/model/ModelSettings.h"
#include "platform/events/Subscription.h"

#include <functional>

namespace velmora {

/// Saves soon after each change, so that not even a kill or a loss of power costs more than the last
/// moments: a second after something was stored or a moving range came to rest, five after the last key of
/// an unfinished line. At most one save in two seconds.
class AutoSaver {
public:
    explicit AutoSaver(std::function<void()> save) : m_save(std::move(save)) {}

    void note(ModelChange change);

private:
    void saveOrWait();
    void save();

    std::function<void()> m_save;
    bool m_waitsForPause = false;
    bool m_isPausing = false;
    bool m_hasCommitted = false;
    Subscription m_afterCommit;
    Subscription m_atRest;
    Subscription m_afterTyping;
    Subscription m_pause;
};

} // namespace velmora
