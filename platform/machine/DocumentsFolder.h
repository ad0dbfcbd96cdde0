#pragma once

#include "platform/machine/InstallScope.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace velmora {

/// Where the program keeps the user's files.
class DocumentsFolder {
public:
    virtual ~DocumentsFolder() = default;

    /// The folder, existing; nothing when the machine offers none.
    virtual std::optional<std::filesystem::path> path() const = 0;
};

/// A documents folder at a given path, made when it is first asked for.
class PlainDocumentsFolder final : public DocumentsFolder {
public:
    explicit PlainDocumentsFolder(std::filesystem::path path);
    std::optional<std::filesystem::path> path() const override;

private:
    std::filesystem::path m_path;
};

using DocumentsFolderScope = InstallScope<DocumentsFolder>;

/// The folder of the implementation in force; nothing while none is installed, so that a program without
/// one never writes anywhere by accident.
std::optional<std::filesystem::path> documentsFolder();

/// The path of a file of that name (UTF-8) in the folder; nothing without a folder.
std::optional<std::filesystem::path> documentPath(std::string_view fileName);

} // namespace velmora
