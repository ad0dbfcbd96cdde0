#pragma once

#include <QPointF>
#include <QSGNode>

namespace velmora {

/// A node whose content is put on whole pixels of the device before every frame, wherever the items around
/// it have moved since. (An item hears nothing of its ancestors' moves.)
class PixelSnappedNode : public QSGNode {
public:
    PixelSnappedNode();

    /// How many pixels a unit of the window has; told whenever the item is synchronized.
    void setDevicePixelRatio(double ratio) { m_devicePixelRatio = ratio; }
    void preprocess() override;

protected:
    /// How the node's own units lie on the pixels of the device; the scene is neither turned nor sheared.
    struct Pixels {
        double perUnitAcross;
        double perUnitDown;
        QPointF origin; ///< of the node, in pixels
    };
    virtual void placeOn(const Pixels& pixels) = 0;

private:
    double m_devicePixelRatio = 1;
};

} // namespace velmora
