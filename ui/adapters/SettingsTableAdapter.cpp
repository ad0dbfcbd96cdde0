#include "ui/adapters/SettingsTableAdapter.h"

#include "platform/events/ActionScope.h"
#include "toolkit/OrvSettingsTableViewController.h"
#include "ui/adapters/SceneAdapter.h"

#include <QStringList>

namespace velmora {

namespace {

QString kindName(OrvSettingsCell::Kind kind) {
    switch (kind) {
    case OrvSettingsCell::Kind::Switch:
        return QStringLiteral("switch");
    case OrvSettingsCell::Kind::Segmented:
        return QStringLiteral("segmented");
    case OrvSettingsCell::Kind::ListPick:
        return QStringLiteral("pick");
    case OrvSettingsCell::Kind::Slider:
        return QStringLiteral("slider");
    case OrvSettingsCell::Kind::TextField:
        return QStringLiteral("field");
    case OrvSettingsCell::Kind::PlainText:
        return QStringLiteral("text");
    case OrvSettingsCell::Kind::Action:
        return QStringLiteral("action");
    }
    return {};
}

QStringList toQStrings(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts) {
        list.append(QString::fromStdString(text));
    }
    return list;
}

} // namespace

SettingsTableAdapter::SettingsTableAdapter(std::shared_ptr<OrvSettingsTableViewController> controller,
                                           SceneAdapter& scene)
    : m_controller(std::move(controller)), m_scene(scene) {
    m_subscription = m_controller->reloaded().subscribe([this] { refresh(); });
    // Which rows there are depends on the device.
    connect(&scene, &SceneAdapter::changed, this, [this] {
        if (m_controller->isVisible()) {
            m_controller->reload();
        }
    });
    refresh();
}

SettingsTableAdapter::~SettingsTableAdapter() = default;

QString SettingsTableAdapter::title() const { return QString::fromStdString(m_controller->title()); }

void SettingsTableAdapter::refresh() {
    std::vector<Row> rows;
    for (const auto& section : m_controller->sections()) {
        rows.push_back({QString::fromStdString(section.title), nullptr});
        for (const auto& cell : section.cells) {
            rows.push_back({QString(), cell});
        }
    }
    // A row that is being worked stays, so the list is made anew only where its length changes.
    if (rows.size() == m_rows.size()) {
        m_rows = std::move(rows);
        if (!m_rows.empty()) {
            Q_EMIT dataChanged(index(0), index(rowCount() - 1));
        }
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

std::shared_ptr<OrvSettingsCell> SettingsTableAdapter::cell(int row) const {
    return row >= 0 && row < rowCount() ? m_rows[std::size_t(row)].cell : nullptr;
}

int SettingsTableAdapter::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant SettingsTableAdapter::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row& row = m_rows[std::size_t(index.row())];
    switch (role) {
    case KindRole:
        return row.cell ? kindName(row.cell->kind()) : QStringLiteral("header");
    case TitleRole:
        return row.cell ? QString::fromStdString(row.cell->title()) : row.header;
    case ValueRole:
        return row.cell ? QString::fromStdString(row.cell->valueText()) : QString();
    case ItemsRole:
        return row.cell ? toQStrings(row.cell->items()) : QStringList();
    case ChosenRole:
        return row.cell ? row.cell->index() : 0;
    case FractionRole:
        return row.cell ? row.cell->fraction() : 0;
    case ExplanationRole:
        return row.cell ? QString::fromStdString(row.cell->explanation()) : QString();
    case PlaceholderRole:
        return row.cell ? QString::fromStdString(row.cell->placeholder()) : QString();
    case EnabledRole:
        return !row.cell || row.cell->isEnabled();
    default:
        return {};
    }
}

QHash<int, QByteArray> SettingsTableAdapter::roleNames() const {
    return {{KindRole, "kind"},
            {TitleRole, "title"},
            {ValueRole, "value"},
            {ItemsRole, "items"},
            {ChosenRole, "chosen"},
            {FractionRole, "fraction"},
            {ExplanationRole, "explanation"},
            {PlaceholderRole, "placeholder"},
            {EnabledRole, "usable"}};
}

void SettingsTableAdapter::choose(int row, int index) {
    const ActionScope action;
    if (const auto chosen = cell(row)) {
        m_controller->choose(*chosen, index);
        m_scene.update(); // the orientations allowed may be others now
    }
}

void SettingsTableAdapter::setText(int row, const QString& text) {
    const ActionScope action;
    if (const auto edited = cell(row)) {
        m_controller->setText(*edited, text.toStdString());
    }
}

void SettingsTableAdapter::setFraction(int row, double fraction) {
    const ActionScope action;
    if (const auto moved = cell(row)) {
        m_controller->setFraction(*moved, fraction);
    }
}

void SettingsTableAdapter::tap(int row) {
    const ActionScope action;
    if (const auto tapped = cell(row)) {
        m_controller->tap(*tapped);
    }
}

} // namespace velmora
