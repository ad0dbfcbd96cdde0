#pragma once

#include "platform/screens/ViewController.h"

#include <string>
#include <utility>

namespace velmora {

/// An empty screen that goes by a name, in place of the one that is registered under it.
class NamedScreen final : public ViewController {
public:
    explicit NamedScreen(std::string name) : m_name(std::move(name)) {}
    std::string className() const override { return m_name; }

private:
    std::string m_name;
};

} // namespace velmora
