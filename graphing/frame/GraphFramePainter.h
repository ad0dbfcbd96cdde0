#pragma once

#include "graphing/frame/GraphFrame.h"
#include "platform/screens/DrawingContext.h"

namespace velmora {

/// Issues the commands that draw a frame, in their order: axes, grid, curves by slot, and the trace. The
/// labels are records of their own, written over it. Nothing for a viewport that is not usable.
void paintFrame(const GraphFrame& frame, DrawingContext& context);

} // namespace velmora
