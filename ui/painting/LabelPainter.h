#pragma once

#include "toolkit/LabelRecord.h"

#include <optional>

class QPainter;

namespace velmora {

/// Paints a label as its record says, on a painter whose unit is the scene's point. Hidden and empty ones
/// leave no trace. A halo keeps the text readable over lines.
void paintLabel(QPainter& painter, const LabelRecord& label, std::optional<Color> halo = std::nullopt);

} // namespace velmora
