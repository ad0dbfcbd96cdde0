#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace velmora {

/// Which bytes a file held at some moment, told without reading them: any later write shows.
struct FileIdentity {
    bool exists = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t changedSeconds = 0;
    std::int64_t changedNanoseconds = 0;

    bool operator==(const FileIdentity&) const = default;
};

/// What came of reading a whole file.
struct FileReading {
    enum class State : unsigned char {
        Absent,      ///< nothing stands at the path
        Read,        ///< `bytes` holds it all
        NoFile,      ///< something that is no plain file stands there: a folder, a pipe, a device
        TooLarge,    ///< past the limit
        Unreachable, ///< it may be there and whole, but could not be opened or read, for the `reason`
    };

    State state = State::Absent;
    std::string bytes{};
    std::string reason{};
    FileIdentity identity{};
};

/// Reads what the path leads to through symbolic links. A link that leads nowhere is not an absent file
/// but one that cannot be reached. Never waits for a pipe or a device.
FileReading readFile(const std::filesystem::path& path, std::uint64_t largest);

/// The identity of what the path leads to; nothing when the system does not tell, as in a closed folder
/// or behind a link that leads nowhere.
std::optional<FileIdentity> identityOfFile(const std::filesystem::path& path);

} // namespace velmora
