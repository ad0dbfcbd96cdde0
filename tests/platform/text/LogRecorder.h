#pragma once

#include "platform/text/Log.h"

#include <string>
#include <vector>

namespace velmora {

/// Collects the log lines of a test.
class LogRecorder {
public:
    const std::vector<std::string>& lines() const { return m_lines; }

private:
    std::vector<std::string> m_lines;
    LogScope m_scope{[this](std::string_view line) { m_lines.emplace_back(line); }};
};

} // namespace velmora
