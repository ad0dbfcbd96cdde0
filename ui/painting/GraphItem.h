#pragma once

#include "graphing/screen/GraphViewController.h"
#include "platform/events/Subscription.h"
#include "platform/screens/TapCounter.h"
#include "ui/adapters/GraphAdapter.h"
#include "ui/machine/ShakeSensor.h"
#include "ui/painting/DevicePixelItem.h"

#include <QMouseEvent>
#include <QPointer>

namespace velmora {

/// Paints the graph with its labels, and hands fingers, mouse, wheel and shakes to its controller.
class GraphItem : public DevicePixelItem, public GraphPicture {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(velmora::GraphAdapter* screen READ screen WRITE setScreen REQUIRED)
    /// What stands over the graph; the numbers of the axes keep clear of it.
    Q_PROPERTY(QRectF covered MEMBER m_covered)

public:
    explicit GraphItem(QQuickItem* parent = nullptr);
    ~GraphItem() override;

    GraphAdapter* screen() const { return m_screen; }
    void setScreen(GraphAdapter* screen);

    std::vector<std::uint8_t> png() override;
    std::optional<std::string> savePng() override;

protected:
    void paint(QPainter& painter) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// A double click comes after the press that it is, so there is nothing left to do.
    void mouseDoubleClickEvent(QMouseEvent* event) override { event->accept(); }
    void wheelEvent(QWheelEvent* event) override;

private:
    void paintTraceHandle(QPainter& painter) const;

    QPointer<GraphAdapter> m_screen;
    std::shared_ptr<GraphViewController> m_controller;
    QRectF m_covered;
    Subscription m_redraws;
    TapCounter m_taps;
    ShakeSensor m_shakes;
};

} // namespace velmora
