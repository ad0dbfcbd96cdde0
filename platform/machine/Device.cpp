#include "platform/machine/Device.h"

namespace velmora {

const Device& currentDevice() {
    static PlainDevice plain;
    return DeviceScope::installedOr(plain);
}

} // namespace velmora
