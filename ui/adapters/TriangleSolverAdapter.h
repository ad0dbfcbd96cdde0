#pragma once

#include "platform/events/Subscription.h"
#include "ui/painting/PictureItem.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace velmora {

class SceneAdapter;
class TriangleSolverViewController;

/// The triangle's screen as QML shows it. The lists have an entry a field: sides a to c, then angles A to C.
class TriangleSolverAdapter final : public QObject, public PictureSource {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QStringList names READ names CONSTANT)
    Q_PROPERTY(QStringList typedTexts READ typedTexts NOTIFY refreshed)
    Q_PROPERTY(QStringList calculatedTexts READ calculatedTexts NOTIFY refreshed)
    Q_PROPERTY(QStringList problems READ problems NOTIFY refreshed)
    Q_PROPERTY(QString area READ area NOTIFY refreshed)
    Q_PROPERTY(QString label READ label NOTIFY refreshed)
    Q_PROPERTY(bool labelIsCentred READ labelIsCentred NOTIFY refreshed)
    Q_PROPERTY(QString note READ note NOTIFY refreshed)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY refreshed)
    Q_PROPERTY(bool canToggle READ canToggle NOTIFY refreshed)
    /// What the picture tells, for those who do not see it.
    Q_PROPERTY(QString spokenPicture READ spokenPicture NOTIFY refreshed)

public:
    TriangleSolverAdapter(std::shared_ptr<TriangleSolverViewController> controller,
                          const SceneAdapter& scene);
    ~TriangleSolverAdapter() override;

    QStringList names() const;
    QStringList typedTexts() const;
    QStringList calculatedTexts() const;
    QStringList problems() const;
    QString area() const;
    QString label() const;
    bool labelIsCentred() const;
    QString note() const;
    bool hasPicture() const;
    bool canToggle() const;
    QString spokenPicture() const;
    Picture& picture() override;

    Q_INVOKABLE void setText(int field, const QString& text);
    Q_INVOKABLE void finishField(int field);
    Q_INVOKABLE void clearCalculated();
    Q_INVOKABLE void clearAll();
    Q_INVOKABLE void toggleSolution();

Q_SIGNALS:
    void refreshed();

private:
    std::shared_ptr<TriangleSolverViewController> m_controller;
    Subscription m_subscription;
};

} // namespace velmora
