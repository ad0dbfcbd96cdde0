#include "ui/adapters/DateCalculatorAdapter.h"

#include "platform/events/ActionScope.h"
#include "tools/dates/DateCalculatorViewController.h"
#include "ui/adapters/SceneAdapter.h"

#include <QVariantMap>

#include <array>

namespace velmora {

namespace {

using Wheel = DateCalculatorViewController::Wheel;

constexpr std::array kHeadings{"From", "To"};
constexpr std::array kWheelNames{"%1 day", "%1 month", "%1 year"};

} // namespace

DateCalculatorAdapter::DateCalculatorAdapter(std::shared_ptr<DateCalculatorViewController> controller,
                                             const SceneAdapter& scene)
    : m_controller(std::move(controller)) {
    Q_UNUSED(scene)
    // The models live no longer than the adapter, which holds the controller.
    DateCalculatorViewController* own = m_controller.get();
    for (int date = 0; date < DateCalculatorViewController::kDateCount; ++date) {
        for (const Wheel wheel : DateCalculatorViewController::kWheels) {
            const QString heading = tr(kHeadings[static_cast<std::size_t>(date)]);
            m_wheels.push_back(std::make_unique<WheelModel>(
                WheelModel::Source{.name = tr(kWheelNames[static_cast<std::size_t>(wheel)]).arg(heading),
                                   .rowCount = [=] { return own->numberOfRows(date, wheel); },
                                   .text = [=](int row) { return own->titleForRow(date, wheel, row); },
                                   .selected = [=] { return own->selectedRow(date, wheel); },
                                   .select = [=](int row) { own->didSelectRow(date, wheel, row); },
                                   .picture = {}}));
        }
    }
    m_subscription = m_controller->updated().subscribe([this] {
        for (const auto& wheel : m_wheels) {
            wheel->refresh();
        }
        Q_EMIT updated();
    });
}

DateCalculatorAdapter::~DateCalculatorAdapter() = default;

QVariantList DateCalculatorAdapter::dates() const {
    QVariantList list;
    constexpr std::size_t wheelsADate = DateCalculatorViewController::kWheels.size();
    for (std::size_t date = 0; date < kHeadings.size(); ++date) {
        QVariantList wheels;
        for (std::size_t wheel = 0; wheel < wheelsADate; ++wheel) {
            wheels.append(QVariantMap{
                {QStringLiteral("model"), QVariant::fromValue(m_wheels[date * wheelsADate + wheel].get())}});
        }
        list.append(QVariantMap{{QStringLiteral("heading"), tr(kHeadings[date])},
                                {QStringLiteral("wheels"), wheels}});
    }
    return list;
}

QStringList DateCalculatorAdapter::dateTexts() const {
    QStringList texts;
    for (int date = 0; date < DateCalculatorViewController::kDateCount; ++date) {
        texts.append(QString::fromStdString(m_controller->dateText(date)));
    }
    return texts;
}

bool DateCalculatorAdapter::countsLastDay() const { return m_controller->countsLastDay(); }

void DateCalculatorAdapter::setCountsLastDay(bool counts) { m_controller->setCountsLastDay(counts); }

QString DateCalculatorAdapter::orderText() const { return QString::fromStdString(m_controller->orderText()); }

QVariantList DateCalculatorAdapter::rows() const {
    QVariantList list;
    for (const auto& row : m_controller->rows()) {
        QStringList figures;
        for (const auto& figure : row.figures) {
            figures.append(QString::fromStdString(figure.text));
        }
        list.append(QVariantMap{{QStringLiteral("title"), QString::fromStdString(row.title)},
                                {QStringLiteral("figures"), figures}});
    }
    return list;
}

void DateCalculatorAdapter::setToday(int date) { m_controller->setToday(date); }

void DateCalculatorAdapter::tapFigure(int row, int figure) {
    const ActionScope action;
    if (row >= 0 && figure >= 0) {
        m_controller->tapFigure(static_cast<std::size_t>(row), static_cast<std::size_t>(figure));
    }
}

} // namespace velmora
