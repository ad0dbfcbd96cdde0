#pragma once

#include "platform/events/Subscription.h"
#include "ui/adapters/WheelModel.h"

#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace velmora {

class DateCalculatorViewController;
class SceneAdapter;

/// The date calculator as QML shows it.
class DateCalculatorAdapter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// The two dates, each with "heading" and "wheels", which are the "model" of day, month, year.
    Q_PROPERTY(QVariantList dates READ dates CONSTANT)
    Q_PROPERTY(QStringList dateTexts READ dateTexts NOTIFY updated)
    Q_PROPERTY(bool countsLastDay READ countsLastDay WRITE setCountsLastDay NOTIFY updated)
    Q_PROPERTY(QString orderText READ orderText NOTIFY updated)
    /// The ways to count, each with "title" and "figures", a list of texts.
    Q_PROPERTY(QVariantList rows READ rows NOTIFY updated)

public:
    DateCalculatorAdapter(std::shared_ptr<DateCalculatorViewController> controller,
                          const SceneAdapter& scene);
    ~DateCalculatorAdapter() override;

    QVariantList dates() const;
    QStringList dateTexts() const;
    bool countsLastDay() const;
    void setCountsLastDay(bool counts);
    QString orderText() const;
    QVariantList rows() const;

    Q_INVOKABLE void setToday(int date);
    Q_INVOKABLE void tapFigure(int row, int figure);

Q_SIGNALS:
    void updated();

private:
    std::shared_ptr<DateCalculatorViewController> m_controller;
    std::vector<std::unique_ptr<WheelModel>> m_wheels; ///< three for each date
    Subscription m_subscription;
};

} // namespace velmora
