#pragma once

#include "platform/files/AtomicFile.h"
#include "platform/files/FileReading.h"
#include "platform/files/PropertyList.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// A file in which the program keeps a dictionary between runs. It is replaced as a whole, holds a digest
/// of its content, and is never replaced by a program that has not seen what it holds.
class KeptFile {
public:
    enum class State : unsigned char {
        Absent,      ///< there is no file, or an empty one
        Read,        ///< `content` is what was written
        SetAside,    ///< damaged: renamed to `keptAs`; `content` is as much as could be understood
        Unreachable, ///< could not be opened, read or set aside, for the `reason`; it stays as it is
    };
    struct Reading {
        State state = State::Absent;
        std::optional<PropertyDictionary> content{};
        std::filesystem::path keptAs{};
        std::string reason{};
    };

    explicit KeptFile(std::filesystem::path path) : m_path(std::move(path)) {}

    const std::filesystem::path& path() const { return m_path; }

    /// Of a file that cannot be understood or reached the log says the complaint.
    Reading read(std::string_view complaint);

    /// Whether what stands at the path now was read or written by this object (nothing there: seen so).
    bool isAsLastSeen() const;

    /// Gives up what could not be read, which is set aside where that is possible: the next write may
    /// replace it.
    void giveUp();

    /// Replaces the file; what it already holds is not written again. Refused unless it is as last seen.
    WriteResult write(const PropertyDictionary& content);

private:
    std::filesystem::path m_path;
    std::optional<FileIdentity> m_seen;      // none while the file could not be reached
    std::optional<PropertyData> m_lastBytes; // written into what was last seen
};

} // namespace velmora
