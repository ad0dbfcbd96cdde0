#include "platform/machine/StandardStreams.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace velmora {

void secureStandardStreams() {
    // A new descriptor gets the lowest free number, so all below it are taken once it is beyond them.
    int opened = ::open("/dev/null", O_RDWR);
    while (opened >= 0 && opened <= STDERR_FILENO) {
        opened = ::open("/dev/null", O_RDWR);
    }
    if (opened >= 0) {
        ::close(opened);
    }
    for (const int signal : {SIGPIPE, SIGXFSZ}) {
        struct sigaction ignored {};
        ignored.sa_handler = SIG_IGN;
        ::sigaction(signal, &ignored, nullptr);
    }
}

} // namespace velmora
