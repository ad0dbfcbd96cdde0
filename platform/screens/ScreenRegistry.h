#pragma once

#include "platform/screens/ViewController.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace velmora {

/// Makes screens by class name, so that one opens another without knowing it.
class ScreenRegistry {
public:
    using Factory = std::function<std::shared_ptr<ViewController>()>;

    static ScreenRegistry& shared();

    /// Adds a screen, replacing an earlier one of that name.
    void registerScreen(std::string name, Factory factory);
    bool isRegistered(std::string_view name) const { return m_factories.contains(name); }
    /// A new screen; null, logged, when the name is not registered.
    std::shared_ptr<ViewController> make(std::string_view name) const;
    /// Forgets every screen.
    void reset() { m_factories.clear(); }

private:
    ScreenRegistry() = default;

    std::map<std::string, Factory, std::less<>> m_factories;
};

} // namespace velmora
