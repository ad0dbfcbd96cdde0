#include "ui/adapters/GraphAdapter.h"

#include "graphing/screen/GraphViewController.h"
#include "platform/events/ActionScope.h"
#include "ui/adapters/HardwareKeyName.h"
#include "ui/adapters/SceneAdapter.h"

#include <QStringList>

namespace velmora {

GraphAdapter::GraphAdapter(std::shared_ptr<GraphViewController> controller, SceneAdapter& scene)
    : m_controller(std::move(controller)) {
    connect(&scene, &SceneAdapter::changed, this, &GraphAdapter::scaled);
}

GraphAdapter::~GraphAdapter() = default;

QString GraphAdapter::spokenGraph() const {
    const GraphView& view = m_controller->graphView();
    if (!view.noGraphLabel().hidden) {
        return QString::fromStdString(view.noGraphLabel().text);
    }
    QStringList lines;
    for (const LabelRecord& label : view.graphLabelArray()) {
        if (!label.text.empty()) {
            lines += QString::fromStdString(label.text);
        }
    }
    const Viewport& shown = view.viewport();
    lines += tr("x from %1 to %2, y from %3 to %4")
                 .arg(shown.xMin)
                 .arg(shown.xMax)
                 .arg(shown.yMin)
                 .arg(shown.yMax);
    return lines.join(QLatin1String(". "));
}

bool GraphAdapter::isBackgroundBlack() const { return m_controller->graphView().graphBackgroundIsBlack(); }

void GraphAdapter::showMenu() {
    const ActionScope action;
    m_controller->showGraphMenu();
}

bool GraphAdapter::pressHardwareKey(int key, const QString& text, int modifiers) {
    const ActionScope action;
    if (modifiers == Qt::ControlModifier && (key == Qt::Key_C || key == Qt::Key_S)) {
        key == Qt::Key_C ? m_controller->copyPicture() : m_controller->savePicture();
        return true;
    }
    return m_controller->pressHardwareKey(hardwareKeyName(key, text, modifiers));
}

} // namespace velmora
