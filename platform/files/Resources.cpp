#include "platform/files/Resources.h"

#include "platform/text/Log.h"

#include <utility>

namespace velmora {

namespace {

std::map<std::string, std::string_view, std::less<>>& resources() {
    static std::map<std::string, std::string_view, std::less<>> registered;
    return registered;
}

} // namespace

void registerResource(std::string name, std::string_view bytes) {
    resources().insert_or_assign(std::move(name), bytes);
}

std::optional<std::string_view> findResource(std::string_view name) {
    const auto resource = resources().find(name);
    return resource == resources().end() ? std::nullopt : std::optional(resource->second);
}

std::optional<std::string> resourceText(std::string_view name, std::string_view type) {
    std::string fileName(name);
    fileName.append(".").append(type);
    const std::optional<std::string_view> bytes = findResource(fileName);
    return bytes ? std::optional(std::string(*bytes)) : std::nullopt;
}

std::optional<PropertyList> readPropertyListResource(std::string_view name) {
    const std::optional<std::string_view> bytes = findResource(name);
    if (!bytes) {
        log("missing resource: " + std::string(name));
        return std::nullopt;
    }
    std::optional<PropertyList> list = readPropertyList(*bytes);
    if (!list) {
        log("malformed resource: " + std::string(name));
    }
    return list;
}

ResourcesScope::ResourcesScope() : m_former(std::exchange(resources(), {})) {}

ResourcesScope::~ResourcesScope() { resources() = std::move(m_former); }

} // namespace velmora
