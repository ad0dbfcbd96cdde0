#pragma once

#include "platform/files/PropertyList.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// The files compiled into the program, found by file name ("Units.plist").

/// Adds a resource, replacing an earlier one of that name.
/// The bytes are not copied and must stay valid as long as the program runs.
void registerResource(std::string name, std::string_view bytes);

/// A file in the program: its name and where its bytes begin and end.
struct CompiledResource {
    const char* name;
    const char* begin;
    const char* end;

    std::string_view bytes() const { return {begin, static_cast<std::size_t>(end - begin)}; }
};

/// Makes a table of files known, sorted by name, in place of an earlier table. It is not copied, for the
/// start shall not pay for what is never read.
void registerResources(std::span<const CompiledResource> files);

/// The names of all resources that end so, in their order.
std::vector<std::string> resourceNames(std::string_view ending);

/// The bytes of a resource; nothing when there is none of that name.
std::optional<std::string_view> findResource(std::string_view name);

/// The bytes of the resource "name.type" as text; nothing when it is missing.
std::optional<std::string> resourceText(std::string_view name, std::string_view type);

/// The property list in the resource of that file name ("Units.plist").
/// A missing or malformed one is logged and gives nothing.
std::optional<PropertyList> readPropertyListResource(std::string_view name);

/// Hides all registered resources for the length of a scope, so that a test can register its own.
class ResourcesScope {
public:
    ResourcesScope();
    ~ResourcesScope();
    ResourcesScope(const ResourcesScope&) = delete;
    ResourcesScope& operator=(const ResourcesScope&) = delete;

private:
    std::map<std::string, std::string_view, std::less<>> m_formerResources;
    std::span<const CompiledResource> m_formerFiles;
};

} // namespace velmora
