#pragma once

#include "platform/events/Subscription.h"

#include <QObject>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace velmora {

class NavigationController;
class SceneAdapter;
class TabBarController;
class ViewController;

/// The screen on display, whichever tab and stack it belongs to, and its navigation bar.
class NavigationAdapter final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// What draws the screen and what it draws; both empty while nothing does.
    Q_PROPERTY(QUrl qmlFile READ qmlFile NOTIFY screenChanged)
    Q_PROPERTY(QObject* screen READ screen NOTIFY screenChanged)
    /// Kept with the screen on display, so that it shows the same part when it comes back.
    Q_PROPERTY(double scrollPosition READ scrollPosition WRITE setScrollPosition NOTIFY screenChanged)
    Q_PROPERTY(bool barHidden READ isBarHidden NOTIFY barChanged)
    Q_PROPERTY(double barHeight READ barHeight NOTIFY barChanged)
    Q_PROPERTY(QString title READ title NOTIFY barChanged)
    Q_PROPERTY(QString backTitle READ backTitle NOTIFY barChanged) ///< empty: there is no way back
    /// The buttons at either end, each with "title" and "enabled".
    Q_PROPERTY(QVariantList leftButtons READ leftButtons NOTIFY barChanged)
    Q_PROPERTY(QVariantList rightButtons READ rightButtons NOTIFY barChanged)

public:
    NavigationAdapter(std::shared_ptr<TabBarController> tabBar, SceneAdapter& scene);
    ~NavigationAdapter() override;

    QUrl qmlFile() const;
    QObject* screen() const { return m_screen.get(); }
    double scrollPosition() const;
    void setScrollPosition(double position);
    bool isBarHidden() const;
    double barHeight() const;
    QString title() const;
    QString backTitle() const;
    QVariantList leftButtons() const;
    QVariantList rightButtons() const;

    Q_INVOKABLE void goBack();
    Q_INVOKABLE void pressLeftButton(int index);
    Q_INVOKABLE void pressRightButton(int index);

Q_SIGNALS:
    void screenAboutToChange();
    void screenChanged();
    void barChanged();

private:
    std::shared_ptr<ViewController> selected() const;
    NavigationController* stack() const;
    bool isBehindMore() const;
    void refresh();

    std::shared_ptr<TabBarController> m_tabBar;
    SceneAdapter& m_scene;
    std::shared_ptr<ViewController> m_top;
    bool m_showsMoreList = false;
    std::unique_ptr<QObject> m_screen;
    std::vector<Subscription> m_subscriptions;
    Subscription m_stackSubscription;
    Subscription m_topSubscription;
};

} // namespace velmora
