#pragma once

#include <QFont>

#include <string_view>

namespace velmora {

/// The family in which everything is written where no other is asked for.
QString systemFontFamily();

/// The font of a name as screens use it (empty for the system font), its size in points of the scene.
QFont sceneFont(std::string_view name, double size);

} // namespace velmora
