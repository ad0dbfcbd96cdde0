#pragma once

#include "platform/machine/InstallScope.h"

namespace velmora {

enum class DeviceClass { Phone, Tablet };
enum class Orientation { Portrait, PortraitUpsideDown, LandscapeLeft, LandscapeRight };

constexpr bool isPortrait(Orientation orientation) {
    return orientation == Orientation::Portrait || orientation == Orientation::PortraitUpsideDown;
}
constexpr bool isLandscape(Orientation orientation) { return !isPortrait(orientation); }

/// The kind of machine and how it is held.
class Device {
public:
    virtual ~Device() = default;

    virtual DeviceClass deviceClass() const = 0;
    /// The orientation in which the scene is drawn.
    virtual Orientation statusBarOrientation() const = 0;
};

/// A device that is whatever it was told to be; a phone held upright at first.
class PlainDevice final : public Device {
public:
    PlainDevice() = default;
    explicit PlainDevice(DeviceClass deviceClass, Orientation orientation = Orientation::Portrait)
        : m_deviceClass(deviceClass), m_orientation(orientation) {}

    DeviceClass deviceClass() const override { return m_deviceClass; }
    Orientation statusBarOrientation() const override { return m_orientation; }
    void setDeviceClass(DeviceClass deviceClass) { m_deviceClass = deviceClass; }
    void setStatusBarOrientation(Orientation orientation) { m_orientation = orientation; }

private:
    DeviceClass m_deviceClass = DeviceClass::Phone;
    Orientation m_orientation = Orientation::Portrait;
};

using DeviceScope = InstallScope<Device>;

/// The device in force; a phone held upright while none is installed.
const Device& currentDevice();

inline bool isTablet() { return currentDevice().deviceClass() == DeviceClass::Tablet; }

} // namespace velmora
