#pragma once

#include <utility>

namespace velmora {

/// Puts an implementation of a platform interface in force for the length of a scope: the whole run when
/// the program starts up, one test otherwise. Scopes nest; the former implementation returns at the end.
/// The implementation must outlive the scope.
template <class Interface> class InstallScope {
public:
    explicit InstallScope(Interface& implementation)
        : m_former(std::exchange(s_installed, &implementation)) {}
    ~InstallScope() { s_installed = m_former; }
    InstallScope(const InstallScope&) = delete;
    InstallScope& operator=(const InstallScope&) = delete;

    /// The implementation in force, or the given one while none is installed.
    static Interface& installedOr(Interface& fallback) { return s_installed ? *s_installed : fallback; }

private:
    inline static Interface* s_installed = nullptr;
    Interface* m_former;
};

} // namespace velmora
