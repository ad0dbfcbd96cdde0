#include "platform/files/PropertyList.h"

#include <limits>
#include <utility>

namespace velmora {

PropertyList::PropertyList() = default;
PropertyList::PropertyList(bool value) : m_value(value) {}
PropertyList::PropertyList(int value) : m_value(std::int64_t{value}) {}
PropertyList::PropertyList(std::int64_t value) : m_value(value) {}
PropertyList::PropertyList(double value) : m_value(value) {}
PropertyList::PropertyList(const char* text) : m_value(std::string(text)) {}
PropertyList::PropertyList(std::string text) : m_value(std::move(text)) {}
PropertyList::PropertyList(PropertyData bytes) : m_value(std::move(bytes)) {}
PropertyList::PropertyList(PropertyArray array) : m_value(std::move(array)) {}
PropertyList::PropertyList(PropertyDictionary dictionary) : m_value(std::move(dictionary)) {}

PropertyList::PropertyList(const PropertyList& other) = default;
PropertyList::PropertyList(PropertyList&& other) noexcept = default;
PropertyList& PropertyList::operator=(const PropertyList& other) = default;
PropertyList& PropertyList::operator=(PropertyList&& other) noexcept = default;
PropertyList::~PropertyList() = default;

bool PropertyList::operator==(const PropertyList& other) const { return m_value == other.m_value; }

std::optional<bool> PropertyList::asBool() const {
    const bool* value = std::get_if<bool>(&m_value);
    return value ? std::optional(*value) : std::nullopt;
}

std::optional<std::int64_t> PropertyList::asInteger() const {
    const std::int64_t* value = std::get_if<std::int64_t>(&m_value);
    return value ? std::optional(*value) : std::nullopt;
}

std::optional<double> PropertyList::asDouble() const {
    if (const std::int64_t* whole = std::get_if<std::int64_t>(&m_value)) {
        return static_cast<double>(*whole);
    }
    const double* value = std::get_if<double>(&m_value);
    return value ? std::optional(*value) : std::nullopt;
}

} // namespace velmora
