#include "ui/painting/GraphItem.h"

#include "platform/events/ActionScope.h"
#include "platform/text/Log.h"
#include "ui/adapters/QtConversions.h"
#include "ui/painting/LabelPainter.h"
#include "ui/painting/QtDrawingContext.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QInputEvent>
#include <QPainter>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTouchEvent>
#include <QWheelEvent>

namespace velmora {

namespace {

/// When it happened, however late it is dealt with.
double secondsOf(const QInputEvent& event) { return static_cast<double>(event.timestamp()) / 1000; }

Point toPoint(QPointF point) { return {point.x(), point.y()}; }

/// A name that no picture has yet, with the time, so that pictures sort by it.
QString newPicturePath(const QDir& folder) {
    const QString stem = QStringLiteral("Graph ") +
                         QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH.mm.ss"));
    QString name = stem + QStringLiteral(".png");
    for (int number = 2; folder.exists(name); ++number) {
        name = QStringLiteral("%1 (%2).png").arg(stem).arg(number);
    }
    return folder.filePath(name);
}

} // namespace

GraphItem::GraphItem(QQuickItem* parent) : DevicePixelItem(parent) {
    setActiveFocusOnTab(true);
    setAcceptTouchEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
    connect(&m_shakes, &ShakeSensor::shaken, this, [this] {
        if (m_controller) {
            m_controller->graphView().motionEnded();
        }
    });
    m_shakes.setActive(isVisible());
}

GraphItem::~GraphItem() {
    if (m_controller) {
        m_controller->setPicture(nullptr);
    }
}

void GraphItem::setScreen(GraphAdapter* screen) {
    m_screen = screen;
    m_controller = std::static_pointer_cast<GraphViewController>(screen->controller().shared_from_this());
    m_controller->setPicture(this);
    m_redraws = m_controller->graphView().needsDisplay().subscribe([this] { repaint(); });
    connect(screen, &GraphAdapter::scaled, this, &GraphItem::repaint);
}

void GraphItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    if (m_controller) {
        m_controller->graphView().setSize({newGeometry.width(), newGeometry.height()});
    }
    DevicePixelItem::geometryChange(newGeometry, oldGeometry);
}

void GraphItem::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemVisibleHasChanged) {
        m_shakes.setActive(data.boolValue);
    }
    DevicePixelItem::itemChange(change, data);
}

void GraphItem::paint(QPainter& painter) {
    if (!m_controller) {
        return;
    }
    GraphView& view = m_controller->graphView();
    const Rect bounds{0, 0, width(), height()};
    painter.fillRect(toQRectF(bounds), toQColor(view.backgroundColor()));
    view.setSize({width(), height()});
    {
        QtDrawingContext context(painter, bounds);
        view.drawRect(context);
    }
    paintTraceHandle(painter);
    for (const LabelRecord& number :
         view.numbersBeside({m_covered.x(), m_covered.y(), m_covered.width(), m_covered.height()})) {
        paintLabel(painter, number, view.backgroundColor());
    }
    for (const LabelRecord& label : view.graphLabelArray()) {
        paintLabel(painter, label, view.backgroundColor());
    }
    paintLabel(painter, view.noGraphLabel());
    if (m_screen) {
        Q_EMIT m_screen->drawn();
    }
}

/// The trace line has the colour of the grid; a halo and a handle tell it from the grid's lines.
void GraphItem::paintTraceHandle(QPainter& painter) const {
    const GraphView& view = m_controller->graphView();
    if (view.traceMode() == TraceMode::None) {
        return;
    }
    const double x = view.screenXForTracing();
    constexpr double halo = 5;
    constexpr double radius = 7;
    constexpr double aboveEdge = 14;
    QColor color(0x3d, 0x8b, 0xe8);
    const QPointF handle(x, height() - aboveEdge);
    painter.setPen(QPen(toQColor(view.backgroundColor()), 1.5));
    painter.setBrush(color);
    painter.drawEllipse(handle, radius, radius);
    constexpr double faint = 0.25;
    color.setAlphaF(faint);
    painter.fillRect(QRectF(x - halo / 2, 0, halo, height()), color);
}

std::vector<std::uint8_t> GraphItem::png() {
    ensurePolished(); // what has changed since the last frame is in the picture
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (picture().isNull() || !buffer.open(QIODevice::WriteOnly) || !picture().save(&buffer, "PNG")) {
        return {};
    }
    return {bytes.begin(), bytes.end()};
}

std::optional<std::string> GraphItem::savePng() {
    ensurePolished();
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    if (picture().isNull() || !folder.mkpath(QStringLiteral("."))) {
        return std::nullopt;
    }
    const QString path = newPicturePath(folder);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !picture().save(&file, "PNG") || !file.commit()) {
        log("the picture could not be written");
        return std::nullopt;
    }
    return QDir::toNativeSeparators(path).toStdString();
}

void GraphItem::touchEvent(QTouchEvent* event) {
    event->accept();
    if (!m_controller) {
        return;
    }
    const ActionScope action;
    if (event->type() == QEvent::TouchCancel) {
        m_taps.cancel();
        m_controller->touchesCancelled();
        return;
    }
    Touches touches;
    std::size_t released = 0;
    bool pressed = false;
    bool moved = false;
    const bool single = event->points().size() == 1;
    if (!single) {
        m_taps.cancel();
    }
    for (const QEventPoint& point : event->points()) {
        Touch touch{point.id(), toPoint(point.position()), single ? 1 : 0};
        if (point.state() == QEventPoint::Pressed) {
            pressed = true;
            if (single) {
                touch.tapCount = m_taps.touchBegan(touch.location, secondsOf(*event));
            }
        } else if (point.state() == QEventPoint::Released) {
            ++released;
            if (single) {
                touch.tapCount = m_taps.touchEnded(touch.location, secondsOf(*event));
            }
        } else if (point.state() == QEventPoint::Updated) {
            moved = true;
        }
        touches.push_back(touch);
    }
    if (pressed) {
        m_controller->touchesBegan(touches);
    }
    if (moved) {
        m_controller->touchesMoved(touches);
    }
    if (released > 0) {
        m_controller->touchesEnded(touches, touches.size() - released);
    }
}

void GraphItem::touchUngrabEvent() {
    if (m_controller) {
        m_controller->touchesCancelled();
    }
}

void GraphItem::mousePressEvent(QMouseEvent* event) {
    forceActiveFocus(Qt::MouseFocusReason);
    if (!m_controller) {
        return;
    }
    const ActionScope action;
    if (event->button() == Qt::RightButton) {
        m_controller->showGraphMenu();
        return;
    }
    const Point location = toPoint(event->position());
    m_controller->touchesBegan({{0, location, m_taps.touchBegan(location, secondsOf(*event))}});
}

void GraphItem::mouseMoveEvent(QMouseEvent* event) {
    if (m_controller && event->buttons().testFlag(Qt::LeftButton)) {
        const ActionScope action;
        m_controller->touchesMoved({{0, toPoint(event->position()), 1}});
    }
}

void GraphItem::mouseReleaseEvent(QMouseEvent* event) {
    if (m_controller && event->button() == Qt::LeftButton) {
        const ActionScope action;
        const Point location = toPoint(event->position());
        m_controller->touchesEnded({{0, location, m_taps.touchEnded(location, secondsOf(*event))}}, 0);
    }
}

void GraphItem::wheelEvent(QWheelEvent* event) {
    event->accept();
    if (!m_controller) {
        return;
    }
    constexpr double notch = QWheelEvent::DefaultDeltasPerStep;
    const QPoint turned = event->angleDelta();
    const ActionScope action;
    m_controller->wheelTurned(toPoint(event->position()), (turned.y() != 0 ? turned.y() : turned.x()) / notch,
                              event->modifiers().testFlag(Qt::ShiftModifier),
                              event->modifiers().testFlag(Qt::ControlModifier));
}

} // namespace velmora
