#pragma once

#include <functional>
#include <string_view>

namespace velmora {

/// Writes one diagnostic line. Everything the program reports goes through here; nothing else prints.
void log(std::string_view line);

/// Receives the log lines instead of standard error for the length of a scope.
class LogScope {
public:
    explicit LogScope(std::function<void(std::string_view)> receiver);
    ~LogScope();
    LogScope(const LogScope&) = delete;
    LogScope& operator=(const LogScope&) = delete;

private:
    std::function<void(std::string_view)> m_former;
};

} // namespace velmora
