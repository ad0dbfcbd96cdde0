#include "platform/files/PropertyListFile.h"

#include "platform/files/AtomicFile.h"
#include "platform/text/Log.h"

#include <system_error>

namespace velmora {

bool writePropertyListAtomically(const std::filesystem::path& path, const PropertyList& list) {
    const PropertyData bytes = binaryPropertyList(list);
    if (bytes.empty()) {
        log("nothing to write, the former file stays: " + path.string());
        return false;
    }
    return writeFileAtomically(path, bytes);
}

std::optional<PropertyList> readDictionaryFile(const std::filesystem::path& path,
                                               std::string_view complaint) {
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        return std::nullopt;
    }
    if (const auto bytes = readFile(path)) {
        auto list = readPropertyList(*bytes);
        if (list && list->asDictionary()) {
            return list;
        }
        if (bytes->empty()) {
            return std::nullopt; // there is nothing to lose
        }
    }
    log(complaint);
    setAsideDamagedFile(path);
    return std::nullopt;
}

} // namespace velmora
