#include "platform/files/FileReading.h"

#include "platform/files/AtomicFile.h"
#include "platform/files/Descriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>

namespace velmora {

namespace {

using State = FileReading::State;

/// What a failure to look at the path means: that nothing stands there, or that it cannot be told.
bool meansAbsent(int error, const std::filesystem::path& path) {
    std::error_code ignored;
    const bool isLink = std::filesystem::is_symlink(std::filesystem::symlink_status(path, ignored));
    return error == ENOENT && !isLink;
}

FileReading unreachable(int error) {
    return {.state = State::Unreachable, .reason = std::generic_category().message(error)};
}

FileIdentity identityOf(const struct stat& status) {
    return {.exists = true,
            .device = status.st_dev,
            .inode = status.st_ino,
            .size = status.st_size,
            .changedSeconds = status.st_mtim.tv_sec,
            .changedNanoseconds = status.st_mtim.tv_nsec};
}

/// 0, or the number of what went wrong.
int readAll(int descriptor, std::string& bytes) {
    char buffer[65536];
    while (true) {
        const ssize_t count = ::read(descriptor, buffer, sizeof buffer);
        if (count == 0) {
            return 0;
        }
        if (count > 0) {
            bytes.append(buffer, static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            return errno;
        }
    }
}

} // namespace

FileReading readFile(const std::filesystem::path& path, std::uint64_t largest) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        const int error = errno;
        return meansAbsent(error, path) ? FileReading{} : unreachable(error);
    }
    if (!S_ISREG(status.st_mode)) {
        return {.state = State::NoFile, .identity = identityOf(status)};
    }
    // Without waiting, should a pipe have taken the file's place since.
    const Descriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!descriptor.isOpen() || ::fstat(descriptor.value(), &status) != 0) {
        return unreachable(errno);
    }
    FileReading reading{.state = State::Read, .identity = identityOf(status)};
    if (static_cast<std::uint64_t>(status.st_size) > largest) {
        reading.state = State::TooLarge;
    } else if (const int error = readAll(descriptor.value(), reading.bytes)) {
        return unreachable(error);
    }
    return reading;
}

std::optional<FileIdentity> identityOfFile(const std::filesystem::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) {
        return identityOf(status);
    }
    return meansAbsent(errno, path) ? std::optional(FileIdentity{}) : std::nullopt;
}

} // namespace velmora
