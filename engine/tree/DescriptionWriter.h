#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Gathers a tree's description up to a length that constants repeating constants would pass.
class DescriptionWriter {
public:
    static constexpr std::size_t kMaximumLength = 1'000'000;

    bool isFull() const { return m_text.size() > kMaximumLength; }
    DescriptionWriter& operator<<(std::string_view text) {
        if (!isFull()) {
            m_text += text;
        }
        return *this;
    }
    std::string text() && {
        if (isFull()) {
            m_text += "…";
        }
        return std::move(m_text);
    }

private:
    std::string m_text;
};

} // namespace velmora
