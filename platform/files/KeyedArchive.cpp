#include "platform/files/KeyedArchive.h"

#include <utility>

namespace velmora {

void KeyedArchiver::encode(std::string_view key, PropertyList value) {
    m_fields.insert_or_assign(std::string(key), std::move(value));
}

KeyedUnarchiver::KeyedUnarchiver(const PropertyList& list) {
    if (const PropertyDictionary* fields = list.asDictionary()) {
        m_fields = *fields;
    }
}

const PropertyList* KeyedUnarchiver::value(std::string_view key) const {
    const auto field = m_fields.find(key);
    return field == m_fields.end() || field->second.isNothing() ? nullptr : &field->second;
}

std::optional<bool> KeyedUnarchiver::boolean(std::string_view key) const {
    const PropertyList* field = value(key);
    return field ? field->asBool() : std::nullopt;
}

std::optional<std::int64_t> KeyedUnarchiver::integer(std::string_view key) const {
    const PropertyList* field = value(key);
    return field ? field->asInteger() : std::nullopt;
}

std::optional<double> KeyedUnarchiver::number(std::string_view key) const {
    const PropertyList* field = value(key);
    return field ? field->asDouble() : std::nullopt;
}

std::optional<std::string> KeyedUnarchiver::text(std::string_view key) const {
    const PropertyList* field = value(key);
    const std::string* text = field ? field->asText() : nullptr;
    return text ? std::optional(*text) : std::nullopt;
}

const PropertyArray* KeyedUnarchiver::array(std::string_view key) const {
    const PropertyList* field = value(key);
    return field ? field->asArray() : nullptr;
}

} // namespace velmora
