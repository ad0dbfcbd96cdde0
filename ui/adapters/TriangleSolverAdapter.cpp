#include "ui/adapters/TriangleSolverAdapter.h"

#include "platform/events/ActionScope.h"
#include "tools/triangle/TriangleSolverViewController.h"
#include "ui/adapters/SceneAdapter.h"

namespace velmora {

namespace {

template <class Text> QStringList textsOfFields(Text&& text) {
    QStringList texts;
    for (std::size_t field = 0; field < TriangleSolverViewController::kFields; ++field) {
        texts.append(QString::fromStdString(text(field)));
    }
    return texts;
}

} // namespace

TriangleSolverAdapter::TriangleSolverAdapter(std::shared_ptr<TriangleSolverViewController> controller,
                                             const SceneAdapter& scene)
    : m_controller(std::move(controller)) {
    Q_UNUSED(scene)
    m_subscription = m_controller->contentsChanged().subscribe([this] { Q_EMIT refreshed(); });
}

TriangleSolverAdapter::~TriangleSolverAdapter() = default;

QStringList TriangleSolverAdapter::names() const {
    return textsOfFields(TriangleSolverViewController::fieldName);
}

QStringList TriangleSolverAdapter::typedTexts() const {
    return textsOfFields([this](std::size_t field) { return m_controller->typedText(field); });
}

QStringList TriangleSolverAdapter::calculatedTexts() const {
    return textsOfFields([this](std::size_t field) { return m_controller->calculatedText(field); });
}

QStringList TriangleSolverAdapter::problems() const {
    return textsOfFields([this](std::size_t field) { return m_controller->problem(field); });
}

QString TriangleSolverAdapter::area() const { return QString::fromStdString(m_controller->areaText()); }

QString TriangleSolverAdapter::label() const { return QString::fromStdString(m_controller->label()); }

bool TriangleSolverAdapter::labelIsCentred() const { return m_controller->labelIsCentred(); }

QString TriangleSolverAdapter::note() const { return QString::fromStdString(m_controller->note()); }

bool TriangleSolverAdapter::hasPicture() const { return !m_controller->picture().isEmpty(); }

bool TriangleSolverAdapter::canToggle() const { return m_controller->canToggle(); }

QString TriangleSolverAdapter::spokenPicture() const {
    QStringList texts;
    for (const LabelRecord& label : m_controller->picture().labels()) {
        texts.append(QString::fromStdString(label.text));
    }
    return texts.join(QStringLiteral(", "));
}

Picture& TriangleSolverAdapter::picture() { return m_controller->picture(); }

void TriangleSolverAdapter::setText(int field, const QString& text) {
    m_controller->setText(static_cast<std::size_t>(field), text.toStdString());
}

void TriangleSolverAdapter::finishField(int field) {
    m_controller->finishField(static_cast<std::size_t>(field));
}

void TriangleSolverAdapter::clearCalculated() { m_controller->clearCalculated(); }

void TriangleSolverAdapter::clearAll() {
    const ActionScope action;
    m_controller->clearAll();
}

void TriangleSolverAdapter::toggleSolution() { m_controller->toggleSolution(); }

} // namespace velmora
