#pragma once

#include "platform/machine/Device.h"
#include "platform/screens/ScreenMetrics.h"
#include "ui/adapters/SceneLayout.h"

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <string>

namespace velmora {

class ViewController;

/// The scene in its window: the device that the window stands for, and how the scene is turned, scaled and
/// placed. Resizing the window rotates or exchanges the device, and everything follows at once.
class SceneAdapter : public QObject, public Device, public ScreenMetrics {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QRectF frame READ frame NOTIFY changed) ///< in the window, before scaling
    Q_PROPERTY(double scale READ scale NOTIFY changed)
    Q_PROPERTY(double tabBarHeight READ tabBarHeight CONSTANT)
    Q_PROPERTY(QUrl panelArtwork READ panelArtwork NOTIFY changed) ///< the ground of what floats

public:
    /// Asks the screens on display whether the scene may turn, and tells them when it does.
    void setRootViewController(std::weak_ptr<ViewController> root) { m_root = std::move(root); }
    /// The window's size in its units, and how many pixels a unit has.
    void setWindow(QSizeF size, double devicePixelRatio);
    /// Looks again which orientation is allowed, for a setting or the screen on display has changed.
    void update();

    QRectF frame() const;
    double scale() const { return m_layout.scale; }
    /// Where artwork of that name is found, drawn for this scene.
    QUrl artwork(const std::string& name) const;
    QUrl panelArtwork() const { return artwork("panel"); }
    /// The rectangle (in points, from the scene's corner) with its sides moved to the nearest pixels.
    QRectF snappedToPixels(const Rect& rect) const;

    DeviceClass deviceClass() const override { return m_deviceClass; }
    Orientation statusBarOrientation() const override { return m_orientation; }
    Size screenSize() const override { return m_layout.size; }
    /// The system's own bar stands outside the window.
    double statusBarHeight() const override { return 0; }
    double tabBarHeight() const override { return 49; }
    double navigationBarHeight(Orientation orientation) const override;

Q_SIGNALS:
    void changed();

private:
    double pixelsPerPoint() const { return m_layout.scale * m_devicePixelRatio; }
    Orientation allowedOrientation() const;

    std::weak_ptr<ViewController> m_root;
    Size m_window;
    double m_devicePixelRatio = 1;
    DeviceClass m_deviceClass = DeviceClass::Phone;
    Orientation m_orientation = Orientation::Portrait;
    SceneLayout m_layout;
};

} // namespace velmora
