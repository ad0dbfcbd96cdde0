#include "ui/adapters/NavigationAdapter.h"

#include "platform/events/ActionScope.h"
#include "platform/screens/NavigationController.h"
#include "platform/screens/TabBarController.h"
#include "ui/adapters/MoreListAdapter.h"
#include "ui/adapters/SceneAdapter.h"
#include "ui/adapters/ScreenAdapters.h"

#include <QVariantMap>

#include <utility>

namespace velmora {

namespace {

QVariantList buttonList(const std::vector<BarButton>& buttons) {
    QVariantList list;
    for (const BarButton& button : buttons) {
        list.append(QVariantMap{{QStringLiteral("title"), QString::fromStdString(button.title)},
                                {QStringLiteral("enabled"), button.enabled}});
    }
    return list;
}

} // namespace

NavigationAdapter::NavigationAdapter(std::shared_ptr<TabBarController> tabBar, SceneAdapter& scene)
    : m_tabBar(std::move(tabBar)), m_scene(scene) {
    m_subscriptions.push_back(m_tabBar->selectionChanged().subscribe([this] { refresh(); }));
    connect(&scene, &SceneAdapter::changed, this, &NavigationAdapter::barChanged);
    refresh();
}

NavigationAdapter::~NavigationAdapter() = default;

std::shared_ptr<ViewController> NavigationAdapter::selected() const {
    return m_tabBar->showsMoreList() ? nullptr : m_tabBar->selectedViewController();
}

NavigationController* NavigationAdapter::stack() const {
    return dynamic_cast<NavigationController*>(selected().get());
}

void NavigationAdapter::refresh() {
    NavigationController* navigation = stack();
    m_stackSubscription =
        navigation ? navigation->stackChanged().subscribe([this](bool) { refresh(); }) : Subscription();
    const auto top = navigation ? navigation->topViewController() : selected();
    const bool moreList = m_tabBar->showsMoreList();
    if (top != m_top || moreList != m_showsMoreList) {
        Q_EMIT screenAboutToChange();
        m_top = top;
        m_showsMoreList = moreList;
        m_topSubscription =
            m_top ? m_top->changed().subscribe([this] { Q_EMIT barChanged(); }) : Subscription();
        // The former screen may be asking for this; it goes when QML has let go of it.
        QObject* former = m_screen.release();
        if (moreList) {
            m_screen = std::make_unique<MoreListAdapter>(m_tabBar, m_scene);
        } else {
            m_screen = m_top ? newScreenAdapter(m_top, m_scene) : nullptr;
        }
        Q_EMIT screenChanged();
        if (former != nullptr) {
            former->deleteLater();
        }
        m_scene.update(); // another screen may allow other orientations
    }
    Q_EMIT barChanged();
}

QUrl NavigationAdapter::qmlFile() const {
    std::string file = m_top && m_screen ? m_top->qmlFile() : std::string();
    if (m_showsMoreList) {
        file = "MoreList.qml";
    }
    return file.empty() ? QUrl() : QUrl(QStringLiteral("qrc:/Velmora/") + QString::fromStdString(file));
}

double NavigationAdapter::scrollPosition() const { return m_top ? m_top->scrollPosition() : 0; }

void NavigationAdapter::setScrollPosition(double position) {
    if (m_top) {
        m_top->setScrollPosition(position);
    }
}

bool NavigationAdapter::isBarHidden() const {
    return !m_showsMoreList && (!stack() || !m_top || m_top->hidesNavigationBar());
}

double NavigationAdapter::barHeight() const {
    return isBarHidden() ? 0 : m_scene.navigationBarHeight(m_scene.statusBarOrientation());
}

QString NavigationAdapter::title() const {
    if (m_showsMoreList) {
        return tr("More");
    }
    return m_top ? QString::fromStdString(m_top->title()) : QString();
}

bool NavigationAdapter::isBehindMore() const {
    return !m_showsMoreList && m_tabBar->selectedIndex() >= m_tabBar->visibleTabCount();
}

QString NavigationAdapter::backTitle() const {
    const NavigationController* navigation = stack();
    if (navigation && navigation->viewControllers().size() == 1 && isBehindMore()) {
        return tr("More");
    }
    if (!navigation || navigation->viewControllers().size() < 2 || !m_top->leftBarButtons().empty()) {
        return {};
    }
    const auto& screens = navigation->viewControllers();
    const std::string& title = screens[screens.size() - 2]->backButtonTitle();
    return title.empty() ? tr("Back") : QString::fromStdString(title);
}

QVariantList NavigationAdapter::leftButtons() const {
    return m_top ? buttonList(m_top->leftBarButtons()) : QVariantList();
}

QVariantList NavigationAdapter::rightButtons() const {
    return m_top ? buttonList(m_top->rightBarButtons()) : QVariantList();
}

void NavigationAdapter::goBack() {
    const ActionScope action;
    NavigationController* navigation = stack();
    if (navigation && navigation->viewControllers().size() > 1) {
        navigation->pop();
    } else if (isBehindMore()) {
        m_tabBar->showMoreList();
    }
}

void NavigationAdapter::pressLeftButton(int index) {
    const ActionScope action;
    if (const auto top = m_top; top && index >= 0) {
        top->pressLeftBarButton(static_cast<std::size_t>(index));
    }
}

void NavigationAdapter::pressRightButton(int index) {
    const ActionScope action;
    if (const auto top = m_top; top && index >= 0) {
        top->pressRightBarButton(static_cast<std::size_t>(index));
    }
}

} // namespace velmora
