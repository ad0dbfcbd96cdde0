#include "ui/adapters/SceneAdapter.h"

#include "platform/events/ActionScope.h"
#include "platform/screens/ViewController.h"
#include "ui/painting/Artwork.h"

#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr double kNavigationBarHeight = 44;

Rect snapped(const Rect& rect, double pixelsPerPoint) {
    const auto snap = [&](double length) { return std::round(length * pixelsPerPoint) / pixelsPerPoint; };
    const double left = snap(rect.x);
    const double top = snap(rect.y);
    return {left, top, snap(rect.x + rect.width) - left, snap(rect.y + rect.height) - top};
}

} // namespace

void SceneAdapter::setWindow(QSizeF size, double devicePixelRatio) {
    m_window = {size.width(), size.height()};
    m_devicePixelRatio = devicePixelRatio;
    update();
}

void SceneAdapter::update() {
    const DeviceClass formerClass = m_deviceClass;
    const Orientation formerOrientation = m_orientation;
    const SceneLayout formerLayout = m_layout;
    // The device first: what the model allows depends on it.
    m_deviceClass = deviceClassOfWindow(m_window);
    m_orientation = allowedOrientation();
    m_layout = sceneLayout(m_window, m_deviceClass, m_orientation);

    const bool turned = m_deviceClass != formerClass || m_orientation != formerOrientation;
    if (!turned && m_layout == formerLayout) {
        return;
    }
    const ActionScope action;
    const auto root = m_root.lock();
    if (turned && root) {
        root->willAnimateRotation(m_orientation);
    }
    Q_EMIT changed();
    if (turned && root) {
        root->didRotate(formerOrientation);
    }
}

Orientation SceneAdapter::allowedOrientation() const {
    const auto root = m_root.lock();
    const std::array inOrderOfPreference = {orientationOfWindow(m_window), m_orientation,
                                            Orientation::Portrait, Orientation::LandscapeLeft};
    for (const Orientation orientation : inOrderOfPreference) {
        if (!root || root->shouldAutorotate(orientation)) {
            return orientation;
        }
    }
    return m_orientation;
}

QRectF SceneAdapter::frame() const {
    // The corner on a whole pixel, so that what is snapped within the scene is sharp in the window.
    const Rect corner = snapped({m_layout.origin.x, m_layout.origin.y, 0, 0}, m_devicePixelRatio);
    return {corner.x, corner.y, m_layout.size.width, m_layout.size.height};
}

QRectF SceneAdapter::snappedToPixels(const Rect& rect) const {
    const Rect result = snapped(rect, pixelsPerPoint());
    return {result.x, result.y, result.width, result.height};
}

QUrl SceneAdapter::artwork(const std::string& name) const {
    return artworkUrl(name, m_layout.scale, pixelsPerPoint());
}

double SceneAdapter::navigationBarHeight(Orientation) const {
    return kNavigationBarHeight; // phones are never on their side
}

} // namespace velmora
