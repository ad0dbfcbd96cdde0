#pragma once

#include "platform/files/PropertyList.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace velmora {

/// Replaces a file by the binary form of the list, as writeFileAtomically does. False (logged, the former
/// file untouched) when that fails or the list has no binary form.
bool writePropertyListAtomically(const std::filesystem::path& path, const PropertyList& list);

/// Reads a dictionary that the program wrote. Nothing when there is no file, or an empty one; nor for one
/// that cannot be opened, read or understood, which is set aside so that no later save replaces it. Of such
/// a file the log says the complaint.
std::optional<PropertyList> readDictionaryFile(const std::filesystem::path& path, std::string_view complaint);

} // namespace velmora
