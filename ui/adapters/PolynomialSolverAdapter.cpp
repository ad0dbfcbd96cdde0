#include "ui/adapters/PolynomialSolverAdapter.h"

#include "platform/events/ActionScope.h"
#include "tools/solvers/PolynomialSolverViewController.h"
#include "ui/adapters/SceneAdapter.h"

#include <QVariantMap>

namespace velmora {

PolynomialSolverAdapter::PolynomialSolverAdapter(std::shared_ptr<PolynomialSolverViewController> controller,
                                                 SceneAdapter& scene)
    : m_controller(std::move(controller)), m_scene(scene) {
    m_subscription = m_controller->contentsChanged().subscribe([this] { Q_EMIT refreshed(); });
    connect(&scene, &SceneAdapter::changed, this, &PolynomialSolverAdapter::scaled);
}

PolynomialSolverAdapter::~PolynomialSolverAdapter() = default;

QVariantList PolynomialSolverAdapter::fields() const {
    QVariantList fields;
    for (int exponent = m_controller->degree(); exponent >= 0; --exponent) {
        const QString power = QString::fromStdString(PolynomialSolverViewController::powerText(exponent));
        const QString spoken = exponent == 0 ? tr("Constant term") : tr("Coefficient of %1").arg(power);
        fields.append(QVariantMap{
            {QStringLiteral("exponent"), exponent},
            {QStringLiteral("power"), exponent == 0 ? tr("constant") : power},
            {QStringLiteral("spoken"), spoken},
            {QStringLiteral("text"), QString::fromStdString(m_controller->coefficientText(exponent))}});
    }
    return fields;
}

QStringList PolynomialSolverAdapter::problems() const {
    QStringList problems;
    for (int exponent = m_controller->degree(); exponent >= 0; --exponent) {
        problems.append(QString::fromStdString(m_controller->problem(exponent)));
    }
    return problems;
}

QString PolynomialSolverAdapter::equation() const {
    return QString::fromStdString(m_controller->equationText());
}

QString PolynomialSolverAdapter::note() const { return QString::fromStdString(m_controller->degreeNote()); }

QVariantList PolynomialSolverAdapter::roots() const {
    QVariantList roots;
    for (const auto& root : m_controller->roots()) {
        roots.append(QVariantMap{{QStringLiteral("label"), QString::fromStdString(root.label)},
                                 {QStringLiteral("moreExactly"), QString::fromStdString(root.moreExactly)},
                                 {QStringLiteral("statement"), QString::fromStdString(root.statement)},
                                 {QStringLiteral("copyText"), QString::fromStdString(root.copyText)},
                                 {QStringLiteral("isUsable"), root.value.has_value()}});
    }
    return roots;
}

bool PolynomialSolverAdapter::hasPicture() const { return !m_controller->picture().isEmpty(); }

QUrl PolynomialSolverAdapter::panelArtwork() const { return m_scene.panelArtwork(); }

Picture& PolynomialSolverAdapter::picture() { return m_controller->picture(); }

void PolynomialSolverAdapter::setText(int exponent, const QString& text) {
    m_controller->setCoefficientText(exponent, text.toStdString());
}

bool PolynomialSolverAdapter::solve() { return m_controller->solve(); }

void PolynomialSolverAdapter::useRoot(int index) {
    const ActionScope action;
    m_controller->useRoot(static_cast<std::size_t>(index));
}

} // namespace velmora
