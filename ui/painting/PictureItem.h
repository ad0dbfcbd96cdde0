#pragma once

#include "platform/events/Subscription.h"
#include "toolkit/Picture.h"
#include "ui/painting/DevicePixelItem.h"

#include <QPointer>

namespace velmora {

/// What an adapter is that has a picture for the screen.
class PictureSource {
public:
    virtual ~PictureSource() = default;
    /// It lives as long as the adapter.
    virtual Picture& picture() = 0;
};

/// Paints the picture of the screen's adapter, and again whenever it has changed.
class PictureItem : public DevicePixelItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QObject* screen READ screen WRITE setScreen REQUIRED)

public:
    explicit PictureItem(QQuickItem* parent = nullptr) : DevicePixelItem(parent) {}

    QObject* screen() const { return m_screen; }
    void setScreen(QObject* screen);

protected:
    void paint(QPainter& painter) override;

private:
    QPointer<QObject> m_screen;
    Subscription m_changes;
};

} // namespace velmora
