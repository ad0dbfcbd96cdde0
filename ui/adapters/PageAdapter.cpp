#include "ui/adapters/PageAdapter.h"

#include "calculator/pages/PageViewController.h"
#include "platform/events/ActionScope.h"
#include "ui/adapters/SceneAdapter.h"

#include <QVariantMap>

namespace velmora {

namespace {

constexpr double kFormulaTypeSize = 19;

QString kindName(PageItem::Kind kind) {
    switch (kind) {
    case PageItem::Kind::Text:
        return QStringLiteral("text");
    case PageItem::Kind::Heading:
        return QStringLiteral("heading");
    case PageItem::Kind::Figure:
        return QStringLiteral("figure");
    case PageItem::Kind::Formula:
        return QStringLiteral("formula");
    case PageItem::Kind::Keys:
        return QStringLiteral("keys");
    case PageItem::Kind::Action:
        return QStringLiteral("action");
    }
    return {};
}

QVariantMap describe(const PageViewController::Row& row) {
    QString text = QString::fromStdString(row.item.text);
    QString spoken = text;
    Size size = row.figure.size;
    if (row.item.kind == PageItem::Kind::Formula) {
        constexpr double unitsOfTypeSize = 1000;
        const double scale = kFormulaTypeSize / unitsOfTypeSize;
        text = QString::fromStdString(row.formula.plain);
        spoken = QString::fromStdString(row.formula.spoken);
        size = {row.formula.width * scale, (row.formula.ascent + row.formula.descent) * scale};
    } else if (row.item.kind == PageItem::Kind::Figure) {
        spoken = QString::fromStdString(row.figure.spoken);
    }
    return {{QStringLiteral("kind"), kindName(row.item.kind)},
            {QStringLiteral("text"), text},
            {QStringLiteral("spoken"), spoken},
            {QStringLiteral("drawnWidth"), size.width},
            {QStringLiteral("drawnHeight"), size.height},
            {QStringLiteral("insertable"), !row.item.insertion.empty()},
            {QStringLiteral("shown"), QString::fromStdString(row.item.shown)}};
}

} // namespace

PageAdapter::PageAdapter(std::shared_ptr<PageViewController> controller, const SceneAdapter& scene)
    : m_controller(std::move(controller)), m_scene(scene) {
    connect(&scene, &SceneAdapter::changed, this, &PageAdapter::sceneChanged);
}

QUrl PageAdapter::panelArtwork() const { return m_scene.panelArtwork(); }

double PageAdapter::textScale() const { return PageViewController::textScale(); }

void PageAdapter::insert(int row) {
    const ActionScope action;
    if (row >= 0) {
        m_controller->insert(std::size_t(row));
    }
}

void PageAdapter::open(int row) {
    const ActionScope action;
    if (row >= 0) {
        m_controller->open(std::size_t(row));
    }
}

QVariantList PageAdapter::rows() const {
    QVariantList list;
    for (const PageViewController::Row& row : m_controller->rows()) {
        list.append(describe(row));
    }
    return list;
}

} // namespace velmora
