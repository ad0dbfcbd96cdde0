#pragma once

#include "platform/files/PropertyList.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// An object whose properties settings rows read and write by key.
class SettingsTarget {
public:
    virtual ~SettingsTarget() = default;

    /// The value of a property; nothing for an unknown key.
    virtual std::optional<PropertyList> valueForKey(std::string_view key) const = 0;
    /// False, with nothing changed, for an unknown key or a value of another type.
    virtual bool setValueForKey(std::string_view key, const PropertyList& value) = 0;
};

/// Finds settings targets by name, so that a settings row can bind to an object it does not know.
class SettingsTargetRegistry {
public:
    static SettingsTargetRegistry& shared();

    /// Adds a target, replacing an earlier one of that name. It must stay alive until it is replaced.
    void registerTarget(std::string name, SettingsTarget& target);
    /// The target; null, logged, when the name is not registered.
    SettingsTarget* find(std::string_view name) const;
    /// Forgets every target.
    void reset() { m_targets.clear(); }

private:
    SettingsTargetRegistry() = default;

    std::map<std::string, SettingsTarget*, std::less<>> m_targets;
};

} // namespace velmora
