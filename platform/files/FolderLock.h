#pragma once

#include "platform/files/Descriptor.h"

#include <filesystem>

namespace velmora {

/// Keeps other copies of the program from writing into a folder. The system ends the lock with the
/// program, however that ends.
class FolderLock {
public:
    /// Takes the lock, or keeps one already taken of that folder. False only while another copy holds it:
    /// where a file system knows no locks, there is nothing to wait for.
    bool take(const std::filesystem::path& folder);

private:
    Descriptor m_folder;
    std::filesystem::path m_path;
};

} // namespace velmora
