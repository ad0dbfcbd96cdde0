#pragma once

namespace velmora {

/// The key of the file under which the lines of the history stand.
inline constexpr const char* kHistoryArchiveKey = "ModelHistoryTokenArrays";

} // namespace velmora
