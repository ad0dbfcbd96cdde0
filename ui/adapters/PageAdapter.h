#pragma once

#include <QObject>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class PageViewController;
class SceneAdapter;

/// A page of text; each paragraph has "text" and "isHeading".
class PageAdapter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QVariantList paragraphs READ paragraphs CONSTANT)
    Q_PROPERTY(QUrl panelArtwork READ panelArtwork NOTIFY sceneChanged)

public:
    PageAdapter(std::shared_ptr<PageViewController> controller, const SceneAdapter& scene);

    QVariantList paragraphs() const;
    QUrl panelArtwork() const;

Q_SIGNALS:
    void sceneChanged();

private:
    std::shared_ptr<PageViewController> m_controller;
    const SceneAdapter& m_scene;
};

} // namespace velmora
