#pragma once

#include <unistd.h>
#include <utility>

namespace velmora {

/// An open file; -1 when opening failed.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int value) : m_value(value) {}
    ~Descriptor() { close(); }
    Descriptor(Descriptor&& other) noexcept : m_value(std::exchange(other.m_value, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_value, other.m_value);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return m_value >= 0; }
    int value() const { return m_value; }
    /// Closing may be what reports that a write failed.
    bool close() {
        const int value = std::exchange(m_value, -1);
        return value < 0 || ::close(value) == 0;
    }

private:
    int m_value = -1;
};

} // namespace velmora
