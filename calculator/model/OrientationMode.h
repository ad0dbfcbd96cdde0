#pragma once

namespace velmora {

/// The orientations that the user allows on a tablet: 0 portrait only, 1 landscape only, 2 both.
/// Any other mode is a programming fault and allows nothing.
bool orientationModeAllowsPortait(int orientationMode);
bool orientationModeAllowsLandscape(int orientationMode);

} // namespace velmora
