#pragma once

#include <QObject>

#include <memory>

namespace velmora {

class SceneAdapter;
class ViewController;

/// What shows a screen's controller to QML; null, logged, for a controller that nothing draws.
std::unique_ptr<QObject> newScreenAdapter(const std::shared_ptr<ViewController>& controller,
                                          SceneAdapter& scene);

} // namespace velmora
