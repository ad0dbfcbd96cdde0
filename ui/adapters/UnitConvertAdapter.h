#pragma once

#include "platform/events/Subscription.h"
#include "tools/units/UnitConvertLayout.h"
#include "ui/adapters/WheelModel.h"

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace velmora {

class SceneAdapter;
class UnitConvertViewController;

/// The unit converter as QML shows it.
class UnitConvertAdapter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString leftSide READ leftSide NOTIFY updated)
    Q_PROPERTY(QString rightSide READ rightSide NOTIFY updated)
    Q_PROPERTY(QString fault READ fault NOTIFY updated)
    Q_PROPERTY(QUrl panelArtwork READ panelArtwork NOTIFY layoutRefreshed)
    Q_PROPERTY(QUrl swapArtwork READ swapArtwork NOTIFY layoutRefreshed)
    // Where things stand, in points of the view whose size QML tells.
    Q_PROPERTY(double scale READ scale NOTIFY layoutRefreshed)
    Q_PROPERTY(QRectF leftSideFrame READ leftSideFrame NOTIFY layoutRefreshed)
    Q_PROPERTY(QRectF rightSideFrame READ rightSideFrame NOTIFY layoutRefreshed)
    Q_PROPERTY(QRectF faultFrame READ faultFrame NOTIFY layoutRefreshed)
    Q_PROPERTY(QRectF swapFrame READ swapFrame NOTIFY layoutRefreshed)
    Q_PROPERTY(double wheelRowHeight READ wheelRowHeight NOTIFY layoutRefreshed)
    /// The three wheels, each with "model" and "frame".
    Q_PROPERTY(QVariantList wheels READ wheels NOTIFY layoutRefreshed)
    /// The keys, each with "frame", "title", "spokenName", "face" and "pressedFace".
    Q_PROPERTY(QVariantList keys READ keys NOTIFY layoutRefreshed)

public:
    UnitConvertAdapter(std::shared_ptr<UnitConvertViewController> controller, const SceneAdapter& scene);
    ~UnitConvertAdapter() override;

    QString leftSide() const;
    QString rightSide() const;
    QString fault() const;
    QUrl panelArtwork() const;
    QUrl swapArtwork() const;
    double scale() const { return m_layout.scale; }
    QRectF leftSideFrame() const;
    QRectF rightSideFrame() const;
    QRectF faultFrame() const;
    QRectF swapFrame() const;
    double wheelRowHeight() const { return m_layout.wheelRowHeight; }
    QVariantList wheels() const;
    QVariantList keys() const;

    Q_INVOKABLE void setViewSize(QSizeF size);
    Q_INVOKABLE void pressKey(const QString& title);
    Q_INVOKABLE bool pressHardwareKey(int key, const QString& text, int modifiers);
    Q_INVOKABLE void swapUnits();

Q_SIGNALS:
    void updated();
    void layoutRefreshed();

private:
    WheelModel::Source wheelSource(int wheel);

    std::shared_ptr<UnitConvertViewController> m_controller;
    const SceneAdapter& m_scene;
    UnitConvertLayout m_layout;
    std::vector<std::unique_ptr<WheelModel>> m_wheels;
    std::vector<Subscription> m_subscriptions;
};

} // namespace velmora
