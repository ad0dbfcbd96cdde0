#include "ui/adapters/FunctionSelectAdapter.h"

#include "calculator/lists/FunctionSelectViewController.h"
#include "platform/events/ActionScope.h"
#include "platform/machine/TextMeasure.h"
#include "ui/adapters/SceneAdapter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr int kTitleSize = 16; // points, as the cell draws them
constexpr int kValueSize = 11;
constexpr int kLargestDetailSize = 13;

QString kindName(FunctionListRowKind kind) {
    switch (kind) {
    case FunctionListRowKind::AngleMode:
        return QStringLiteral("angles");
    case FunctionListRowKind::Heading:
        return QStringLiteral("heading");
    case FunctionListRowKind::Greeting:
        return QStringLiteral("greeting");
    case FunctionListRowKind::OpensScreen:
        return QStringLiteral("link");
    case FunctionListRowKind::NestedList:
        return QStringLiteral("list");
    case FunctionListRowKind::Insert:
        return QStringLiteral("entry");
    }
    return {};
}

/// The meaning first: "sine" says more aloud than "sin()".
QString spokenText(const FunctionListRow& row) {
    const bool isEntry = row.kind == FunctionListRowKind::Insert && !row.detail.empty();
    const std::string first = isEntry ? row.detail : row.title;
    const std::string second = isEntry ? row.title : row.detail;
    QString text = QString::fromStdString(second.empty() ? first : first + ", " + second);
    return row.value.empty() ? text : text + QStringLiteral(" = ") + QString::fromStdString(row.value);
}

} // namespace

FunctionSelectAdapter::FunctionSelectAdapter(std::shared_ptr<FunctionSelectViewController> controller,
                                             const SceneAdapter& scene)
    : m_controller(std::move(controller)) {
    Q_UNUSED(scene)
    m_subscription = m_controller->rowsChanged().subscribe([this] { refresh(); });
    m_rowCount = int(m_controller->rows().size());
}

FunctionSelectAdapter::~FunctionSelectAdapter() = default;

QString FunctionSelectAdapter::title() const { return QString::fromStdString(m_controller->title()); }

QStringList FunctionSelectAdapter::angleModes() const {
    QStringList names;
    for (const char* name : FunctionSelectViewController::kAngleModes) {
        names.append(QString::fromUtf8(name));
    }
    return names;
}

int FunctionSelectAdapter::angleMode() const { return m_controller->angleMode(); }

void FunctionSelectAdapter::setAngleMode(int mode) { m_controller->setAngleMode(mode); }

bool FunctionSelectAdapter::isEditing() const { return m_controller->isEditing(); }

bool FunctionSelectAdapter::hasSearch() const { return m_controller->hasSearch(); }

QString FunctionSelectAdapter::searchText() const {
    return QString::fromStdString(m_controller->searchText());
}

void FunctionSelectAdapter::setSearchText(const QString& text) {
    m_controller->setSearchText(text.toStdString());
}

void FunctionSelectAdapter::refresh() {
    const int count = int(m_controller->rows().size());
    // A list that is made anew begins at its top, so that is left to the case where its length changes.
    if (count == m_rowCount) {
        if (count > 0) {
            Q_EMIT dataChanged(index(0), index(count - 1));
        }
    } else {
        beginResetModel();
        m_rowCount = count;
        endResetModel();
    }
    Q_EMIT rowsRefreshed();
}

int FunctionSelectAdapter::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rowCount;
}

QVariant FunctionSelectAdapter::data(const QModelIndex& index, int role) const {
    const auto& rows = m_controller->rows();
    if (!index.isValid() || index.row() >= int(rows.size())) {
        return {};
    }
    const FunctionListRow& row = rows[std::size_t(index.row())];
    switch (role) {
    case KindRole:
        return kindName(row.kind);
    case TitleRole:
        return QString::fromStdString(row.title);
    case DetailRole:
        return QString::fromStdString(row.detail);
    case DetailAtRightRole:
        return row.detailAlignment == TextAlignment::Right;
    case ValueRole:
        return QString::fromStdString(row.value);
    case RowHeightRole:
        return row.height;
    case SelectableRole:
        return row.isSelectable();
    case SpokenRole:
        return spokenText(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> FunctionSelectAdapter::roleNames() const {
    return {{KindRole, "kind"},
            {TitleRole, "title"},
            {DetailRole, "detail"},
            {DetailAtRightRole, "detailAtRight"},
            {ValueRole, "value"},
            {RowHeightRole, "rowHeight"},
            {SelectableRole, "selectable"},
            {SpokenRole, "spoken"}};
}

double FunctionSelectAdapter::titleColumn(double rowWidth) const {
    constexpr double narrowest = 0.22;
    constexpr double widest = 0.42;
    double width = 0;
    for (const FunctionListRow& row : m_controller->rows()) {
        if (!row.detail.empty()) {
            width = std::max({width, textWidth(row.title, kTitleSize), textWidth(row.value, kValueSize)});
        }
    }
    return std::clamp(std::ceil(width) + 2, narrowest * rowWidth, widest * rowWidth);
}

int FunctionSelectAdapter::detailSize(double detailWidth) const {
    constexpr int smallest = 9;
    constexpr int edges = 2; // of a row
    QFont font = QGuiApplication::font();
    for (int size = kLargestDetailSize; size > smallest; --size) {
        font.setPixelSize(size);
        const QFontMetricsF metrics(font);
        const bool fits = std::ranges::all_of(m_controller->rows(), [&](const FunctionListRow& row) {
            const QRectF place(0, 0, detailWidth, row.height - edges);
            const QString text = QString::fromStdString(row.detail);
            return place.contains(metrics.boundingRect(place, Qt::TextWordWrap, text));
        });
        if (fits) {
            return size;
        }
    }
    return smallest;
}

void FunctionSelectAdapter::select(int row) {
    const ActionScope action;
    if (row >= 0) {
        m_controller->selectRow(std::size_t(row));
    }
}

} // namespace velmora
