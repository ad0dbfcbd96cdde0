#pragma once

#include "platform/files/PropertyList.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// Writes an object's fields under keys. An object that holds others encodes each into an archiver of
/// its own and stores that archiver's list under a key.
class KeyedArchiver {
public:
    void encode(std::string_view key, PropertyList value);

    /// The fields written so far, as one dictionary.
    PropertyList propertyList() const { return m_fields; }

private:
    PropertyDictionary m_fields;
};

/// Reads what KeyedArchiver wrote. An absent key, or a value of another type, gives nothing, so a
/// reader can tell "absent" from zero.
class KeyedUnarchiver {
public:
    /// Anything but a dictionary reads as one without keys.
    explicit KeyedUnarchiver(const PropertyList& list);

    bool containsValueForKey(std::string_view key) const { return value(key) != nullptr; }
    /// The value under the key, or null. A key without a value (an empty PropertyList) counts as absent.
    const PropertyList* value(std::string_view key) const;
    std::optional<bool> boolean(std::string_view key) const;
    std::optional<std::int64_t> integer(std::string_view key) const;
    std::optional<double> number(std::string_view key) const;
    std::optional<std::string> text(std::string_view key) const;
    /// The array under the key, or null.
    const PropertyArray* array(std::string_view key) const;

private:
    PropertyDictionary m_fields;
};

} // namespace velmora
