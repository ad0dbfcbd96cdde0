#include "platform/screens/ScreenMetrics.h"

namespace velmora {

namespace {

constexpr Size kPhoneSize{320, 568};
constexpr Size kTabletSize{768, 1024};
constexpr double kNavigationBarHeight = 44;
constexpr double kLowNavigationBarHeight = 32; // a phone on its side has little height to spare

} // namespace

Size PlainScreenMetrics::screenSize() const {
    const Size portrait = m_portraitSize.value_or(isTablet() ? kTabletSize : kPhoneSize);
    const bool isUpright = isPortrait(currentDevice().statusBarOrientation());
    return isUpright ? portrait : Size{portrait.height, portrait.width};
}

double PlainScreenMetrics::navigationBarHeight(Orientation orientation) const {
    return isTablet() || isPortrait(orientation) ? kNavigationBarHeight : kLowNavigationBarHeight;
}

const ScreenMetrics& screenMetrics() {
    static PlainScreenMetrics plain;
    return ScreenMetricsScope::installedOr(plain);
}

} // namespace velmora
