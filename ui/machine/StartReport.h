#pragma once

class QQuickWindow;

namespace velmora {

/// For measuring the start: where the environment variable VELMORA_START_MILLISECONDS holds the time (since
/// 1970) at which the program was called, the first painted frame logs how long it took and how much memory
/// the program then holds, and ends the program. Otherwise nothing.
void reportStart(QQuickWindow& window);

} // namespace velmora
