#pragma once

#include "platform/events/Subscription.h"
#include "ui/painting/PictureItem.h"

#include <QObject>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class PolynomialSolverViewController;
class SceneAdapter;

/// A polynomial solver as QML shows it.
class PolynomialSolverAdapter final : public QObject, public PictureSource {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// The fields from the highest power down, each with "exponent", "power", "spoken" and the kept "text".
    Q_PROPERTY(QVariantList fields READ fields CONSTANT)
    /// Why each field, in the same order, cannot be used; empty for one that can.
    Q_PROPERTY(QStringList problems READ problems NOTIFY refreshed)
    Q_PROPERTY(QString equation READ equation NOTIFY refreshed)
    Q_PROPERTY(QString note READ note NOTIFY refreshed)
    /// The answer, each line with "label", "moreExactly", "statement", "copyText" and "isUsable".
    Q_PROPERTY(QVariantList roots READ roots NOTIFY refreshed)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY refreshed)
    Q_PROPERTY(QUrl panelArtwork READ panelArtwork NOTIFY scaled)

public:
    PolynomialSolverAdapter(std::shared_ptr<PolynomialSolverViewController> controller, SceneAdapter& scene);
    ~PolynomialSolverAdapter() override;

    QVariantList fields() const;
    QStringList problems() const;
    QString equation() const;
    QString note() const;
    QVariantList roots() const;
    bool hasPicture() const;
    QUrl panelArtwork() const;
    Picture& picture() override;

    Q_INVOKABLE void setText(int exponent, const QString& text);
    Q_INVOKABLE bool solve();
    Q_INVOKABLE void useRoot(int index);

Q_SIGNALS:
    void refreshed();
    void scaled();

private:
    std::shared_ptr<PolynomialSolverViewController> m_controller;
    SceneAdapter& m_scene;
    Subscription m_subscription;
};

} // namespace velmora
