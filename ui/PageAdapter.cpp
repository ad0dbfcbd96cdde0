#include "ui/PageAdapter.h"

#include "calculator/PageViewController.h"
#include "ui/SceneAdapter.h"

#include <QVariantMap>

namespace velmora {

PageAdapter::PageAdapter(std::shared_ptr<PageViewController> controller, const SceneAdapter& scene)
    : m_controller(std::move(controller)) {
    Q_UNUSED(scene)
}

QVariantList PageAdapter::paragraphs() const {
    QVariantList list;
    for (const PageViewController::Paragraph& paragraph : m_controller->paragraphs()) {
        list.append(QVariantMap{{QStringLiteral("text"), QString::fromStdString(paragraph.text)},
                                {QStringLiteral("isHeading"), paragraph.isHeading}});
    }
    return list;
}

} // namespace velmora
