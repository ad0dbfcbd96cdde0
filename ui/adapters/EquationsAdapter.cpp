#include "ui/adapters/EquationsAdapter.h"

#include "graphing/equations/GenericEquationsViewController.h"
#include "platform/events/ActionScope.h"
#include "ui/adapters/SceneAdapter.h"

namespace velmora {

EquationsAdapter::EquationsAdapter(std::shared_ptr<GenericEquationsViewController> controller,
                                   SceneAdapter& scene)
    : m_controller(std::move(controller)) {
    m_subscription = m_controller->reloaded().subscribe([this] { refresh(); });
    connect(&scene, &SceneAdapter::changed, this, &EquationsAdapter::refresh);
}

EquationsAdapter::~EquationsAdapter() = default;

QString EquationsAdapter::title() const { return QString::fromStdString(m_controller->title()); }

void EquationsAdapter::setWidth(double width) {
    if (width != m_width) {
        m_width = width;
        Q_EMIT widthChanged();
        refresh();
    }
}

double EquationsAdapter::rowHeight() const { return m_controller->heightForRow(); }

void EquationsAdapter::refresh() {
    Q_EMIT refreshed();
    Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int EquationsAdapter::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_controller->numberOfRows();
}

QVariant EquationsAdapter::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const EquationCell cell = m_controller->cell(index.row(), m_width);
    switch (role) {
    case VariableRole:
        return QVariant::fromValue(LabelAdapter(cell.variableLabel()));
    case EquationRole:
        return QVariant::fromValue(LabelAdapter(cell.equationLabel()));
    case EqualsZeroRole:
        return QVariant::fromValue(LabelAdapter(cell.equalsZeroLabel()));
    case SpokenRole: {
        const QString text = QString::fromStdString(cell.variableLabel().text + cell.equationLabel().text);
        return (text.endsWith(u'=') ? tr("%1 empty").arg(text) : text) +
               QString::fromStdString(cell.equalsZeroLabel().text);
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> EquationsAdapter::roleNames() const {
    return {{VariableRole, "variable"},
            {EquationRole, "equation"},
            {EqualsZeroRole, "equalsZero"},
            {SpokenRole, "spoken"}};
}

void EquationsAdapter::select(int row) {
    const ActionScope action;
    m_controller->selectRow(row);
}

} // namespace velmora
