#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velmora {

/// Whether a file was written, and if not, why.
struct WriteResult {
    std::string failure{}; ///< the system's reason; empty on success

    explicit operator bool() const { return failure.empty(); }
};

/// Replaces a file as a whole: readers, and a machine that loses power, see either the former or the new
/// bytes. The bytes go to a temporary file in the same folder, which is flushed and renamed over the old
/// one. Symbolic links are followed: what they lead to is replaced, the links stay. On failure, which is
/// logged, the former file is untouched.
WriteResult writeFileAtomically(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);
WriteResult writeFileAtomically(const std::filesystem::path& path, std::string_view bytes);

/// Where symbolic links lead from the path, whether or not something stands there; nothing for a circle.
std::optional<std::filesystem::path> followLinks(std::filesystem::path path);

/// Renames a file that could not be understood, or a folder that stands in its place, to "name (damaged)",
/// "name (damaged 2)" and so on, never over an earlier one, so that nothing of the user's is lost. The new
/// path; nothing (logged) on failure.
std::optional<std::filesystem::path> setAsideDamagedFile(const std::filesystem::path& path);

} // namespace velmora
