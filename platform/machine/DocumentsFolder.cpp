#include "platform/machine/DocumentsFolder.h"

#include "platform/text/Log.h"

#include <string>
#include <system_error>
#include <utility>

namespace velmora {

namespace {

class NoDocumentsFolder final : public DocumentsFolder {
public:
    std::optional<std::filesystem::path> path() const override { return std::nullopt; }
};

} // namespace

PlainDocumentsFolder::PlainDocumentsFolder(std::filesystem::path path) : m_path(std::move(path)) {}

std::optional<std::filesystem::path> PlainDocumentsFolder::path() const {
    std::error_code error;
    std::filesystem::create_directories(m_path, error);
    if (!std::filesystem::is_directory(m_path, error)) {
        log("cannot make the documents folder: " + m_path.string());
        return std::nullopt;
    }
    return m_path;
}

std::optional<std::filesystem::path> documentsFolder() {
    static NoDocumentsFolder none;
    return DocumentsFolderScope::installedOr(none).path();
}

std::optional<std::filesystem::path> documentPath(std::string_view fileName) {
    const std::optional<std::filesystem::path> folder = documentsFolder();
    if (!folder) {
        return std::nullopt;
    }
    return *folder / std::u8string(fileName.begin(), fileName.end());
}

} // namespace velmora
