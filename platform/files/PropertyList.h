#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velmora {

class PropertyList;
using PropertyArray = std::vector<PropertyList>;
using PropertyDictionary = std::map<std::string, PropertyList, std::less<>>;
using PropertyData = std::vector<std::uint8_t>;

/// One value of a property list: what resources and saved files are made of.
/// Reading a value as another type than it holds gives nothing, never a conversion
/// (a whole number may be read as a double, since files of other tools write 1 for 1.0).
class PropertyList {
public:
    using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string, PropertyData,
                               PropertyArray, PropertyDictionary>;

    // Defined in the source, for every reader of this header would compile the variant's own anew.
    PropertyList();
    PropertyList(bool value);
    PropertyList(int value);
    PropertyList(std::int64_t value);
    PropertyList(double value);
    PropertyList(const char* text);
    PropertyList(std::string text);
    PropertyList(PropertyData bytes);
    PropertyList(PropertyArray array);
    PropertyList(PropertyDictionary dictionary);
    PropertyList(const PropertyList& other);
    PropertyList(PropertyList&& other) noexcept;
    PropertyList& operator=(const PropertyList& other);
    PropertyList& operator=(PropertyList&& other) noexcept;
    ~PropertyList();

    bool isNothing() const { return std::holds_alternative<std::monostate>(m_value); }
    std::optional<bool> asBool() const;
    std::optional<std::int64_t> asInteger() const;
    std::optional<double> asDouble() const;
    const std::string* asText() const { return std::get_if<std::string>(&m_value); }
    const PropertyData* asData() const { return std::get_if<PropertyData>(&m_value); }
    const PropertyArray* asArray() const { return std::get_if<PropertyArray>(&m_value); }
    const PropertyDictionary* asDictionary() const { return std::get_if<PropertyDictionary>(&m_value); }
    const Value& value() const { return m_value; }

    bool operator==(const PropertyList& other) const;

private:
    Value m_value;
};

/// Containers nested deeper than this are refused when reading: a hostile file must not exhaust the stack.
inline constexpr int kMaximumPropertyListDepth = 64;

/// A text as it stands in a file: what is not UTF-8 and U+0000, which the format cannot hold, as U+FFFD.
std::string textAsWritten(const std::string& text);

/// The binary form of the list. Doubles survive bit for bit, and so do empty values. A
/// list nested deeper than the limit, which could not be read again, is logged and gives no bytes.
PropertyData binaryPropertyList(const PropertyList& list);

/// No dictionary of the program has more keys, by far; the library's effort grows with their square.
inline constexpr std::size_t kMaximumPropertyListKeys = 4'096;

/// Reads the binary or the XML form; nothing when the bytes are damaged, truncated, nested too deep, or
/// hold more values than any file of the program could.
/// A whole number beyond 64 bits with sign reads as a double; dates and identifiers, which no file of this
/// program holds, read as empty values.
std::optional<PropertyList> readPropertyList(std::string_view bytes);
std::optional<PropertyList> readPropertyList(const PropertyData& bytes);

} // namespace velmora
