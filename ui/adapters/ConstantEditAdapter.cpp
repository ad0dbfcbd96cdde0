#include "ui/adapters/ConstantEditAdapter.h"

#include "calculator/lists/ConstantEditViewController.h"
#include "platform/events/ActionScope.h"
#include "ui/adapters/SceneAdapter.h"

namespace velmora {

ConstantEditAdapter::ConstantEditAdapter(std::shared_ptr<ConstantEditViewController> controller,
                                         const SceneAdapter& scene)
    : m_controller(std::move(controller)) {
    Q_UNUSED(scene)
    m_subscription = m_controller->contentsChanged().subscribe([this] { Q_EMIT refreshed(); });
}

ConstantEditAdapter::~ConstantEditAdapter() = default;

QString ConstantEditAdapter::plainName() const { return QString::fromStdString(m_controller->plainName()); }

QString ConstantEditAdapter::name() const { return QString::fromStdString(m_controller->name()); }

QString ConstantEditAdapter::value() const { return QString::fromStdString(m_controller->valueText()); }

bool ConstantEditAdapter::isDefined() const { return m_controller->isDefined(); }

void ConstantEditAdapter::setName(const QString& name) { m_controller->setName(name.toStdString()); }

void ConstantEditAdapter::editValue() {
    const ActionScope action;
    m_controller->editValue();
}

void ConstantEditAdapter::deleteConstant() { m_controller->deleteConstant(); }

} // namespace velmora
