#include "ui/adapters/PageAdapter.h"

#include "calculator/pages/PageViewController.h"
#include "ui/adapters/SceneAdapter.h"

#include <QVariantMap>

namespace velmora {

PageAdapter::PageAdapter(std::shared_ptr<PageViewController> controller, const SceneAdapter& scene)
    : m_controller(std::move(controller)), m_scene(scene) {
    connect(&scene, &SceneAdapter::changed, this, &PageAdapter::sceneChanged);
}

QUrl PageAdapter::panelArtwork() const { return m_scene.panelArtwork(); }

QVariantList PageAdapter::paragraphs() const {
    QVariantList list;
    for (const PageViewController::Paragraph& paragraph : m_controller->paragraphs()) {
        list.append(QVariantMap{{QStringLiteral("text"), QString::fromStdString(paragraph.text)},
                                {QStringLiteral("isHeading"), paragraph.isHeading}});
    }
    return list;
}

} // namespace velmora
