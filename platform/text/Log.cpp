#include "platform/text/Log.h"

#include <iostream>
#include <utility>

namespace velmora {

namespace {

std::function<void(std::string_view)>& receiverInForce() {
    static std::function<void(std::string_view)> receiver;
    return receiver;
}

} // namespace

void log(std::string_view line) {
    // A copy, so that the receiver may end its own scope while it runs.
    if (const auto receiver = receiverInForce()) {
        receiver(line);
    } else {
        std::cerr << line << '\n';
    }
}

LogScope::LogScope(std::function<void(std::string_view)> receiver)
    : m_former(std::exchange(receiverInForce(), std::move(receiver))) {}

LogScope::~LogScope() { receiverInForce() = std::move(m_former); }

} // namespace velmora
