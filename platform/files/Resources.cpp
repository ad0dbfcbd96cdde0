#include "platform/files/Resources.h"

#include "platform/text/Log.h"

#include <algorithm>
#include <set>
#include <utility>

namespace velmora {

namespace {

std::map<std::string, std::string_view, std::less<>>& resources() {
    static std::map<std::string, std::string_view, std::less<>> registered;
    return registered;
}

std::span<const CompiledResource>& compiledFiles() {
    static std::span<const CompiledResource> files;
    return files;
}

constexpr auto kNameOf = [](const CompiledResource& file) { return std::string_view(file.name); };

} // namespace

void registerResource(std::string name, std::string_view bytes) {
    resources().insert_or_assign(std::move(name), bytes);
}

std::optional<std::string_view> findResource(std::string_view name) {
    const auto resource = resources().find(name);
    if (resource != resources().end()) {
        return resource->second;
    }
    const auto file = std::ranges::lower_bound(compiledFiles(), name, {}, kNameOf);
    const bool isThere = file != compiledFiles().end() && kNameOf(*file) == name;
    return isThere ? std::optional(file->bytes()) : std::nullopt;
}

void registerResources(std::span<const CompiledResource> files) { compiledFiles() = files; }

std::vector<std::string> resourceNames(std::string_view ending) {
    std::set<std::string> names;
    for (const auto& [name, bytes] : resources()) {
        names.insert(name);
    }
    for (const CompiledResource& file : compiledFiles()) {
        names.insert(file.name);
    }
    std::erase_if(names, [&](const std::string& name) { return !name.ends_with(ending); });
    return {names.begin(), names.end()};
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

ResourcesScope::ResourcesScope()
    : m_formerResources(std::exchange(resources(), {})), m_formerFiles(std::exchange(compiledFiles(), {})) {}

ResourcesScope::~ResourcesScope() {
    resources() = std::move(m_formerResources);
    compiledFiles() = m_formerFiles;
}

} // namespace velmora
