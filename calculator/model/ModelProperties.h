#pragma once

#include "platform/files/PropertyList.h"

#include <limits>
#include <span>
#include <string_view>

namespace velmora {

class Model;

enum class PropertyType : unsigned char { Boolean, Integer, Number };

/// One property of the model that settings rows bind to and files hold.
struct ModelProperty {
    std::string_view key; ///< the property's name
    PropertyType type;
    PropertyList (*get)(const Model&);
    void (*set)(Model&, const PropertyList&); ///< the value must have passed `accepts`
    double minimum = -std::numeric_limits<double>::max();
    double maximum = std::numeric_limits<double>::max();
};

/// All of them, once each.
std::span<const ModelProperty> modelProperties();

/// The property of that key, or null.
const ModelProperty* modelProperty(std::string_view key);

/// Whether the value has the property's type and lies in its range. A boolean may also be given as 0 or 1,
/// for a segmented row stores the index of its choice. Numbers must be finite.
bool accepts(const ModelProperty& property, const PropertyList& value);

} // namespace velmora
