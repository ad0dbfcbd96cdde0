#include "ui/adapters/SceneLayout.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr double kShortestTabletSide = 600;
constexpr double kPhoneWidth = 320;
// The keyboards are of fixed height; below these the history would vanish behind the entry line.
constexpr double kLowestPhone = 480;
constexpr double kLowestUprightTablet = 880;
constexpr double kLowestTabletOnItsSide = 600;

/// The scene's size before it is fitted.
Size wantedSize(Size window, DeviceClass deviceClass, Orientation orientation) {
    if (deviceClass == DeviceClass::Phone) {
        return {kPhoneWidth, std::max(kLowestPhone, kPhoneWidth * window.height / window.width)};
    }
    if (isPortrait(orientation) != isPortrait(orientationOfWindow(window))) {
        std::swap(window.width, window.height);
    }
    const double lowest = isPortrait(orientation) ? kLowestUprightTablet : kLowestTabletOnItsSide;
    return {window.width, std::max(lowest, window.height)};
}

} // namespace

DeviceClass deviceClassOfWindow(Size window) {
    const bool isTablet = std::min(window.width, window.height) >= kShortestTabletSide;
    return isTablet ? DeviceClass::Tablet : DeviceClass::Phone;
}

Orientation orientationOfWindow(Size window) {
    return window.width > window.height ? Orientation::LandscapeLeft : Orientation::Portrait;
}

SceneLayout sceneLayout(Size window, DeviceClass deviceClass, Orientation orientation) {
    if (!(window.width > 0 && window.height > 0)) {
        return {};
    }
    const Size size = wantedSize(window, deviceClass, orientation);
    const double scale = std::min(window.width / size.width, window.height / size.height);
    return {
        size, scale, {(window.width - size.width * scale) / 2, (window.height - size.height * scale) / 2}};
}

} // namespace velmora
