#pragma once

#include <QObject>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class PageViewController;
class SceneAdapter;

/// A page to read. Each row has a "kind" ("text", "heading", "figure", "formula", "keys", "action"), a
/// "text" (what is shown or copied), what it says aloud ("spoken"), the size of its drawing in points
/// ("drawnWidth", "drawnHeight"), whether it can be put into a line ("insertable") and, of keys, the result
/// ("shown").
class PageAdapter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QVariantList rows READ rows CONSTANT)
    Q_PROPERTY(double textScale READ textScale CONSTANT)
    Q_PROPERTY(QUrl panelArtwork READ panelArtwork NOTIFY sceneChanged)

public:
    PageAdapter(std::shared_ptr<PageViewController> controller, const SceneAdapter& scene);

    QVariantList rows() const;
    double textScale() const;
    QUrl panelArtwork() const;
    /// Puts a row's formula into the line.
    Q_INVOKABLE void insert(int row);
    /// Opens the link of a row's button.
    Q_INVOKABLE void open(int row);
    PageViewController& controller() const { return *m_controller; }

Q_SIGNALS:
    void sceneChanged();

private:
    std::shared_ptr<PageViewController> m_controller;
    const SceneAdapter& m_scene;
};

} // namespace velmora
