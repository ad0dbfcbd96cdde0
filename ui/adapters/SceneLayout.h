#pragma once

#include "platform/machine/Device.h"
#include "platform/screens/Geometry.h"

namespace velmora {

/// Where the scene lies in the window. The scene counts in points, the window in its own units.
struct SceneLayout {
    Size size;        ///< of the scene
    double scale = 1; ///< window units a point
    Point origin;     ///< of the scene in the window
    bool operator==(const SceneLayout&) const = default;
};

/// A window whose shortest side is 600 units or more stands for a tablet, a smaller one for a phone.
DeviceClass deviceClassOfWindow(Size window);

/// The orientation that the window's shape asks for; a square one is upright.
Orientation orientationOfWindow(Size window);

/// Fits a scene of that device and orientation into the window and centres it. A phone's scene is 320
/// points wide, a tablet's as wide as its screen; both are as high as the window allows, but never too low
/// for the keyboard, the entry line and a few rows of the history. A window without area has no scene.
SceneLayout sceneLayout(Size window, DeviceClass deviceClass, Orientation orientation);

} // namespace velmora
