#pragma once

#include <QString>

#include <string>

namespace velmora {

/// What controllers call a key of a hardware keyboard: its name ("Enter", "Left"), or the text it types.
/// Empty for keys that belong to the system or to a menu (with Control, Alt or Meta).
std::string hardwareKeyName(int key, const QString& text, int modifiers);

} // namespace velmora
