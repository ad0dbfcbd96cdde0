#include "ui/adapters/ValueTableAdapter.h"

#include "calculator/table/ValueTableMetrics.h"
#include "calculator/table/ValueTableViewController.h"
#include "platform/events/ActionScope.h"
#include "ui/adapters/HardwareKeyName.h"
#include "ui/adapters/LabelAdapter.h"
#include "ui/adapters/SceneAdapter.h"

namespace velmora {

namespace {

QVariantList toVariants(const std::vector<LabelRecord>& labels) {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(labels.size()));
    for (const LabelRecord& label : labels) {
        list.append(QVariant::fromValue(LabelAdapter(label)));
    }
    return list;
}

std::string tableKeyName(int key, const QString& text, int modifiers) {
    switch (key) {
    case Qt::Key_PageUp:
        return "PageUp";
    case Qt::Key_PageDown:
        return "PageDown";
    default:
        return hardwareKeyName(key, text, modifiers);
    }
}

} // namespace

ValueTableAdapter::ValueTableAdapter(std::shared_ptr<ValueTableViewController> controller,
                                     SceneAdapter& scene)
    : m_controller(std::move(controller)), m_rowCount(m_controller->numberOfRows()) {
    m_reloads = m_controller->reloaded().subscribe([this] { refresh(); });
    m_rowChanges = m_controller->rowChanged().subscribe([this](int row) {
        Q_EMIT dataChanged(index(row), index(row));
        Q_EMIT markMoved();
    });
    connect(&scene, &SceneAdapter::changed, this, &ValueTableAdapter::refresh);
}

ValueTableAdapter::~ValueTableAdapter() = default;

QString ValueTableAdapter::title() const { return QString::fromStdString(m_controller->title()); }

void ValueTableAdapter::setWidth(double width) {
    if (width != m_width) {
        m_width = width;
        refresh();
    }
}

double ValueTableAdapter::rowHeight() const { return m_controller->heightForRow(m_width); }

QVariantList ValueTableAdapter::header() const { return toVariants(m_controller->header(m_width)); }

double ValueTableAdapter::headerHeight() const {
    return header().isEmpty() ? 0 : ValueTableMetrics::forWidth(m_width).rowHeight;
}

int ValueTableAdapter::markedRow() const { return m_controller->markedRow(); }

void ValueTableAdapter::refresh() {
    if (m_controller->numberOfRows() != m_rowCount) {
        beginResetModel();
        m_rowCount = m_controller->numberOfRows();
        endResetModel();
    } else if (m_rowCount > 0) {
        Q_EMIT dataChanged(index(0), index(m_rowCount - 1));
    }
    Q_EMIT refreshed();
}

int ValueTableAdapter::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rowCount; }

QVariant ValueTableAdapter::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_rowCount) {
        return {};
    }
    switch (role) {
    case LabelsRole:
        return toVariants(m_controller->row(index.row(), m_width));
    case SpokenRole:
        return QString::fromStdString(m_controller->spokenRow(index.row()));
    case MarkedRole:
        return index.row() == m_controller->markedRow();
    case SelectableRole:
        return !m_controller->customTextForRowZero();
    default:
        return {};
    }
}

QHash<int, QByteArray> ValueTableAdapter::roleNames() const {
    return {{LabelsRole, "labels"},
            {SpokenRole, "spoken"},
            {MarkedRole, "marked"},
            {SelectableRole, "selectable"}};
}

void ValueTableAdapter::select(int row) {
    const ActionScope action;
    m_controller->selectRow(row);
}

bool ValueTableAdapter::pressHardwareKey(int key, const QString& text, int modifiers, int rowsPerPage) {
    const ActionScope action;
    return m_controller->pressHardwareKey(tableKeyName(key, text, modifiers), rowsPerPage);
}

} // namespace velmora
