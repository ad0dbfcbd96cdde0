#pragma once

namespace velmora {

/// Draws with Qt Quick's own software renderer where the machine has no graphics hardware to use; an
/// emulated one would be slower and take more memory. What the user has asked for through QT_QUICK_BACKEND
/// or QSG_RHI_BACKEND stays. To be called before the first window is made.
void chooseRenderer();

} // namespace velmora
