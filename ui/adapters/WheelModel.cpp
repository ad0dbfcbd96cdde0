#include "ui/adapters/WheelModel.h"

#include "platform/events/ActionScope.h"

namespace velmora {

WheelModel::WheelModel(Source source) : m_source(std::move(source)), m_rowCount(m_source.rowCount()) {}

QString WheelModel::selectedText() const { return QString::fromStdString(m_source.text(selected())); }

int WheelModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rowCount; }

QVariant WheelModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= m_rowCount) {
        return {};
    }
    if (role == TextRole) {
        return QString::fromStdString(m_source.text(index.row()));
    }
    return role == PictureRole && m_source.picture ? m_source.picture(index.row()) : QUrl();
}

QHash<int, QByteArray> WheelModel::roleNames() const {
    return {{TextRole, "rowText"}, {PictureRole, "picture"}};
}

void WheelModel::select(int row) {
    if (row != selected() && row >= 0 && row < m_rowCount) {
        const ActionScope action;
        m_source.select(row);
        Q_EMIT selectedChanged();
    }
}

int WheelModel::rowForTyped(const QString& character) {
    const PickerRows rows{m_rowCount, m_source.text};
    return m_search.rowFor(character.toStdString(), rows, selected()).value_or(-1);
}

void WheelModel::reload() {
    Q_EMIT aboutToReload();
    beginResetModel();
    m_rowCount = m_source.rowCount();
    endResetModel();
    Q_EMIT selectedChanged();
    Q_EMIT reloaded();
}

void WheelModel::refresh() {
    if (m_rowCount != m_source.rowCount()) {
        reload();
    } else {
        Q_EMIT selectedChanged();
    }
}

} // namespace velmora
