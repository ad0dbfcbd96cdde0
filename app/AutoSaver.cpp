#include "app/AutoSaver.h"

#include "platform/machine/Timer.h"

#include <utility>

namespace velmora {

namespace {

constexpr double kAfterCommit = 1;
constexpr double kAtRest = 1;
constexpr double kAfterTyping = 5;
constexpr double kBetweenSaves = 2;

} // namespace

void AutoSaver::note(ModelChange change) {
    const auto saveAfter = [this](double seconds) {
        return startTimer(seconds, TimerKind::OneShot, [this] { saveOrWait(); });
    };
    switch (change) {
    case ModelChange::Committed:
        // The first change counts: one key after the other must not put the save off.
        if (!std::exchange(m_hasCommitted, true)) {
            m_afterCommit = saveAfter(kAfterCommit);
        }
        break;
    case ModelChange::Moved:
        m_atRest = saveAfter(kAtRest);
        break;
    case ModelChange::Typed:
        m_afterTyping = saveAfter(kAfterTyping);
        break;
    }
}

void AutoSaver::saveOrWait() {
    if (m_isPausing) {
        m_waitsForPause = true;
    } else {
        save();
    }
}

void AutoSaver::save() {
    m_waitsForPause = false;
    m_isPausing = true;
    m_pause = startTimer(kBetweenSaves, TimerKind::OneShot, [this] {
        m_isPausing = false;
        if (m_waitsForPause) {
            save();
        }
    });
    m_save();
    // What was to be saved is; the timers may be the ones that run just now, so they are only let go.
    m_hasCommitted = false;
    m_atRest.cancel();
    m_afterTyping.cancel();
}

} // namespace velmora
