#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace velmora {

/// A fixed set of tokens that are found again by their whole text, without memory of its own and in a few
/// nanoseconds, for every token of every line is looked up. The table is laid out when it is compiled: a
/// multiplier is searched for which a handful of characters of each token selects a slot of its own.
template <std::size_t count> class TokenIndex {
public:
    struct Entry {
        std::string_view token;
        std::uint8_t value = 0;
    };

    /// Empty tokens are left out.
    constexpr explicit TokenIndex(const std::array<Entry, count>& entries) {
        while (!fits(entries)) {
            m_multiplier *= kNextMultiplier; // ends the compilation when no multiplier separates the tokens
        }
    }

    /// The value of a token, or the value given for texts that are none.
    constexpr std::uint8_t find(std::string_view token, std::uint8_t otherwise) const {
        if (token.empty()) {
            return otherwise;
        }
        const Entry& entry = m_slots[slot(token)];
        return entry.token == token ? entry.value : otherwise;
    }

private:
    static constexpr unsigned kBits = 8;
    static constexpr std::uint64_t kNextMultiplier = 6364136223846793005; // Knuth's MMIX generator; odd

    constexpr std::size_t slot(std::string_view token) const {
        const std::size_t length = token.size();
        const std::size_t lastButOne = length - (length > 1 ? 2 : 1); // the last is a bracket in most tokens
        std::uint64_t key = length;
        for (const std::size_t index : {std::size_t{0}, length / 2, length * 2 / 3, lastButOne}) {
            key = (key << 8U) | static_cast<unsigned char>(token[index]);
        }
        return (key * m_multiplier) >> (64U - kBits);
    }

    constexpr bool fits(const std::array<Entry, count>& entries) {
        m_slots = {};
        for (const Entry& entry : entries) {
            if (entry.token.empty()) {
                continue;
            }
            Entry& place = m_slots[slot(entry.token)];
            if (!place.token.empty()) {
                return false;
            }
            place = entry;
        }
        return true;
    }

    std::uint64_t m_multiplier = 0x9E3779B97F4A7C15; // 2^64 / golden ratio, which spreads well; odd
    std::array<Entry, std::size_t{1} << kBits> m_slots{};
};

} // namespace velmora
