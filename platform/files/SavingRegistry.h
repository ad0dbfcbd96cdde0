#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// What is saved together with the model: each tool with a state of its own adds a saver at start-up.
class SavingRegistry {
public:
    static SavingRegistry& shared();

    /// Adds a saver; one of the same name is replaced, so registering twice saves once.
    void registerSaver(std::string name, std::function<void()> saver);
    /// Runs the savers in the order in which they were added.
    void saveAll() const;
    /// Forgets every saver.
    void reset() { m_savers.clear(); }

private:
    SavingRegistry() = default;

    struct Saver {
        std::string name;
        std::function<void()> save;
    };
    std::vector<Saver> m_savers;
};

} // namespace velmora
