#include "platform/files/ContentDigest.h"

#include <array>
#include <bit>
#include <type_traits>
#include <zlib.h>

namespace velmora {

namespace {

/// Each value as a mark of its kind and its bytes in a fixed order; what has a length says it first, so
/// that no two lists look alike.
class Digest {
public:
    void add(const PropertyList& list) {
        number(list.value().index());
        std::visit(
            [this](const auto& value) {
                using Value = std::decay_t<decltype(value)>;
                if constexpr (std::is_same_v<Value, bool>) {
                    number(value ? 1 : 0);
                } else if constexpr (std::is_same_v<Value, std::int64_t>) {
                    number(static_cast<std::uint64_t>(value));
                } else if constexpr (std::is_same_v<Value, double>) {
                    number(std::bit_cast<std::uint64_t>(value));
                } else if constexpr (std::is_same_v<Value, std::string>) {
                    text(value);
                } else if constexpr (std::is_same_v<Value, PropertyData>) {
                    number(value.size());
                    bytes(value.data(), value.size());
                } else if constexpr (std::is_same_v<Value, PropertyArray>) {
                    number(value.size());
                    for (const PropertyList& element : value) {
                        add(element);
                    }
                } else if constexpr (std::is_same_v<Value, PropertyDictionary>) {
                    add(value);
                }
            },
            list.value());
    }

    void add(const PropertyDictionary& dictionary) {
        number(dictionary.size());
        for (const auto& [key, value] : dictionary) {
            text(key);
            add(value);
        }
    }

    std::uint32_t value() const { return static_cast<std::uint32_t>(m_sum); }

private:
    void number(std::uint64_t value) {
        std::array<std::uint8_t, 8> littleEndian{};
        for (std::uint8_t& byte : littleEndian) {
            byte = static_cast<std::uint8_t>(value & 0xFFU);
            value >>= 8U;
        }
        bytes(littleEndian.data(), littleEndian.size());
    }

    void text(const std::string& text) {
        const std::string written = textAsWritten(text);
        number(written.size());
        bytes(reinterpret_cast<const std::uint8_t*>(written.data()), written.size());
    }

    void bytes(const std::uint8_t* data, std::size_t size) { m_sum = crc32_z(m_sum, data, size); }

    uLong m_sum = crc32_z(0, nullptr, 0);
};

} // namespace

std::uint32_t contentDigest(const PropertyDictionary& dictionary) {
    Digest digest;
    digest.add(dictionary);
    return digest.value();
}

} // namespace velmora
