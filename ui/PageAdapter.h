#pragma once

#include <QObject>
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

public:
    PageAdapter(std::shared_ptr<PageViewController> controller, const SceneAdapter& scene);

    QVariantList paragraphs() const;

private:
    std::shared_ptr<PageViewController> m_controller;
};

} // namespace velmora
