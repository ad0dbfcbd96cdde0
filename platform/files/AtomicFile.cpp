#include "platform/files/AtomicFile.h"

#include "platform/files/Descriptor.h"
#include "platform/text/Log.h"

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <iterator>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace velmora {

namespace {

/// Logs the reason that errno holds, and gives it.
std::string logFailure(std::string_view what, const std::filesystem::path& path) {
    std::string reason = std::generic_category().message(errno);
    log(std::string(what) + " " + path.string() + ": " + reason);
    return reason;
}

bool writeAll(int descriptor, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

std::filesystem::path folderOf(const std::filesystem::path& path) {
    return path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
}

/// Makes a rename last: without this the folder's old entry may return after a loss of power.
void flushFolder(const std::filesystem::path& folder) {
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.isOpen()) {
        ::fsync(descriptor.value()); // some file systems refuse this, and then need none
    }
}

constexpr std::size_t kRandomSuffixLength = 6; // of mkstemp

/// Removes what writers of the file left behind when they were killed. Young ones may still be written to.
void removeAbandonedFiles(const std::filesystem::path& path) {
    constexpr std::chrono::minutes youth(10);
    const std::string prefix = path.filename().string() + ".";
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folderOf(path), error)) {
        const std::string name = entry.path().filename().string();
        if (name.size() == prefix.size() + kRandomSuffixLength && name.starts_with(prefix) &&
            entry.last_write_time(error) < std::filesystem::file_time_type::clock::now() - youth && !error) {
            ::unlink(entry.path().c_str());
        }
    }
}

/// Takes a free name by an exclusive creation, so that a rename onto it can only replace what is empty and
/// our own. A folder can be renamed onto a folder only. False, with errno set, when that fails.
bool claimName(const std::filesystem::path& path, bool forFolder) {
    if (forFolder) {
        return ::mkdir(path.c_str(), 0700) == 0;
    }
    return Descriptor(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600)).isOpen();
}

} // namespace

WriteResult writeFileAtomically(const std::filesystem::path& link, std::span<const std::uint8_t> bytes) {
    const auto target = followLinks(link);
    if (!target) {
        errno = ELOOP;
        return {logFailure("cannot write", link)};
    }
    const std::filesystem::path& path = *target;
    std::string temporary = path.string() + ".XXXXXX";
    Descriptor descriptor(::mkstemp(temporary.data()));
    if (!descriptor.isOpen()) {
        return {logFailure("cannot write", path)};
    }
    if (writeAll(descriptor.value(), bytes) && ::fsync(descriptor.value()) == 0 && descriptor.close() &&
        ::rename(temporary.c_str(), path.c_str()) == 0) {
        flushFolder(folderOf(path));
        removeAbandonedFiles(path);
        return {};
    }
    std::string reason = logFailure("cannot write", path);
    ::unlink(temporary.c_str());
    return {std::move(reason)};
}

WriteResult writeFileAtomically(const std::filesystem::path& path, std::string_view bytes) {
    return writeFileAtomically(path,
                               std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
}

std::optional<std::filesystem::path> followLinks(std::filesystem::path path) {
    constexpr int mostLinks = 40; // as many as the system itself follows
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code error;
        const std::filesystem::path target = std::filesystem::read_symlink(path, error);
        if (error) {
            return path; // no link, or nothing
        }
        path = path.parent_path() / target;
    }
    return std::nullopt;
}

std::optional<std::filesystem::path> setAsideDamagedFile(const std::filesystem::path& path) {
    constexpr int kMaximumDamagedFiles = 10'000;
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        log("no file to set aside: " + path.string());
        return std::nullopt;
    }
    const bool isFolder = std::filesystem::is_directory(path, error);
    for (int number = 1; number <= kMaximumDamagedFiles; ++number) {
        const std::string suffix = number == 1 ? " (damaged)" : " (damaged " + std::to_string(number) + ")";
        const std::filesystem::path candidate = path.string() + suffix;
        const bool claimed = claimName(candidate, isFolder);
        if (!claimed && errno == EEXIST) {
            continue;
        }
        if (!claimed || ::rename(path.c_str(), candidate.c_str()) != 0) {
            logFailure("cannot set aside", path);
            if (claimed) {
                std::filesystem::remove(candidate, error);
            }
            return std::nullopt;
        }
        flushFolder(folderOf(path));
        return candidate;
    }
    log("too many damaged files: " + path.string());
    return std::nullopt;
}

} // namespace velmora
