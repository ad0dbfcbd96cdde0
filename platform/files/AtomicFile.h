#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velmora {

/// Replaces a file as a whole: readers, and a machine that loses power, see either the former or the new
/// bytes. The bytes go to a temporary file in the same folder, which is flushed and renamed over the old
/// one. False (logged, the former file untouched) when that fails.
bool writeFileAtomically(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);
bool writeFileAtomically(const std::filesystem::path& path, std::string_view bytes);

/// All bytes of a file; nothing when it is absent or cannot be read.
std::optional<std::string> readFile(const std::filesystem::path& path);

/// Renames a file that could not be understood, or a folder that stands in its place, to "name (damaged)",
/// "name (damaged 2)" and so on, never over an earlier one, so that nothing of the user's is lost. The new
/// path; nothing (logged) on failure.
std::optional<std::filesystem::path> setAsideDamagedFile(const std::filesystem::path& path);

} // namespace velmora
