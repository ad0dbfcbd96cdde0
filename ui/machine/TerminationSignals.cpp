#include "ui/machine/TerminationSignals.h"

#include "platform/text/Log.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace velmora {

namespace {

// A signal handler may do little more than write to a pipe; the event loop reads the other end.
std::array<int, 2>& pipeEnds() {
    static constinit std::array<int, 2> ends{-1, -1};
    return ends;
}

void writeToPipe(int) {
    const char byte = 0;
    static_cast<void>(!write(pipeEnds()[1], &byte, 1));
}

void setHandler(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction former {};
        sigaction(signal, nullptr, &former);
        // Whoever started the program deaf to a signal, as nohup does, wants it to stay.
        if (former.sa_handler != SIG_IGN) {
            sigaction(signal, &action, nullptr);
        }
    }
}

} // namespace

TerminationSignals::TerminationSignals() {
    if (pipe2(pipeEnds().data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        log("no pipe for signals: ending by a signal will not save");
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(pipeEnds()[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        static_cast<void>(!read(pipeEnds()[0], &byte, 1));
        Q_EMIT requested();
    });
    setHandler(writeToPipe);
}

TerminationSignals::~TerminationSignals() {
    if (m_notifier) {
        setHandler(SIG_DFL);
        m_notifier.reset();
        close(pipeEnds()[0]);
        close(pipeEnds()[1]);
    }
}

} // namespace velmora
