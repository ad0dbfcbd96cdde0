#pragma once

#include "platform/files/PropertyList.h"

#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

class Model;

enum class PropertyType : unsigned char { Boolean, Integer, Number };

/// How a property is edited in the settings: the kind of its row.
enum class SettingKind : unsigned char { None, ListPick, Integer, Switch, Double, Segmented };

/// The row of a property in the settings. Those of one section stand in the order of the table.
struct SettingLook {
    int section = 0;
    SettingKind kind = SettingKind::None;
    const char* title = "";
    std::vector<std::string> items{}; ///< of a list pick or a segmented row: their indices are the values
    const char* explanation = "";
};

/// One setting of the model, whole: what it is called, which values it takes, where it is kept and how it
/// is edited.
struct ModelProperty {
    std::string_view key; ///< the property's name
    PropertyType type;
    PropertyList (*get)(const Model&);
    void (*set)(Model&, const PropertyList&); ///< the value must have passed `accepts`
    double minimum = -std::numeric_limits<double>::max();
    double maximum = std::numeric_limits<double>::max();
    PropertyList byDefault{};         ///< at a first start, and where the file says nothing usable
    const char* archiveKey = nullptr; ///< of the file; null for what ModelArchive keeps by rules of its own
    SettingLook look{};
};

/// All of them, once each.
std::span<const ModelProperty> modelProperties();

/// The property of that key, or null.
const ModelProperty* modelProperty(std::string_view key);

/// Whether the value has the property's type and lies in its range. A boolean may also be given as 0 or 1,
/// for a segmented row stores the index of its choice. Numbers must be finite.
bool accepts(const ModelProperty& property, const PropertyList& value);

} // namespace velmora
