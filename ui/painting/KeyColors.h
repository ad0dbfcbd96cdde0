#pragma once

#include <QColor>
#include <QStringView>

#include <optional>

namespace velmora {

/// The ground of a key's face by the name of its image ("buttona"). White text has a contrast of at least
/// 4.5 to 1 on each (WCAG 2.1, success criterion 1.4.3), also where the face is lightest. Nothing for
/// an unknown name.
std::optional<QColor> keyColor(QStringView imageName);

} // namespace velmora
