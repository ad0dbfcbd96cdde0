#pragma once

#include "platform/machine/Device.h"
#include "platform/machine/InstallScope.h"
#include "platform/screens/Geometry.h"

#include <optional>

namespace velmora {

/// Sizes of the scene and of the bars around a screen, in points.
class ScreenMetrics {
public:
    virtual ~ScreenMetrics() = default;

    /// The whole scene in the device's present orientation, bars included.
    virtual Size screenSize() const = 0;
    virtual double statusBarHeight() const = 0;
    virtual double tabBarHeight() const = 0;
    virtual double navigationBarHeight(Orientation orientation) const = 0;
};

/// Sizes that follow the device in force: a phone of 320 by 568 or a tablet of 768 by 1024 points held
/// upright, unless another upright size is set.
class PlainScreenMetrics final : public ScreenMetrics {
public:
    Size screenSize() const override;
    double statusBarHeight() const override { return 20; }
    double tabBarHeight() const override { return 49; }
    double navigationBarHeight(Orientation orientation) const override;

    /// The size when held upright.
    void setPortraitScreenSize(Size size) { m_portraitSize = size; }

private:
    std::optional<Size> m_portraitSize;
};

using ScreenMetricsScope = InstallScope<ScreenMetrics>;

/// The metrics in force; plain ones while none are installed.
const ScreenMetrics& screenMetrics();

} // namespace velmora
