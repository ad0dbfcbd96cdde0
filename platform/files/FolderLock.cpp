#include "platform/files/FolderLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace velmora {

bool FolderLock::take(const std::filesystem::path& folder) {
    if (m_folder.isOpen() && folder == m_path) {
        return true;
    }
    Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened.isOpen()) {
        return true; // reading and writing will say what is wrong
    }
    if (::flock(opened.value(), LOCK_EX | LOCK_NB) != 0) {
        return errno != EWOULDBLOCK;
    }
    m_folder = std::move(opened);
    m_path = folder;
    return true;
}

} // namespace velmora
