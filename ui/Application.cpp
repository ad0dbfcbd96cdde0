#include "ui/Application.h"

#include "platform/screens/TabBarController.h"
#include "ui/painting/Artwork.h"
#include "ui/painting/SystemFont.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QVariantMap>

#include <clocale>

// Made by the build from the QML types of this folder.
extern void qml_register_types_Velmora(); // NOLINT(readability-identifier-naming)

namespace velmora {

namespace {

// A window of a common phone's shape that fits the screen of a small laptop.
constexpr QSize kFirstSize(375, 667);
constexpr QSize kSmallestSize(240, 360);

/// In a static library nothing else refers to the registration, and the linker would leave it out.
void keepQmlTypes() { [[maybe_unused]] void (*const volatile registration)() = &qml_register_types_Velmora; }

} // namespace

Application::Application() : m_window(std::make_unique<QQuickView>()) {
    keepQmlTypes();
    // Qt has set the user's locale; texts and files must be the same everywhere.
    std::setlocale(LC_NUMERIC, "C");
    QFont font(systemFontFamily());
    font.setHintingPreference(QFont::PreferNoHinting);
    QGuiApplication::setFont(font);

    m_window->resize(kFirstSize);
    m_window->setMinimumSize(kSmallestSize);
    followWindow(); // the device is known before the first screen asks for it

    m_delegate.applicationDidFinishLaunching();
    const auto& tabBar = m_delegate.tabBarController();
    m_scene.setRootViewController(tabBar);
    m_tabBar = std::make_unique<TabBarAdapter>(tabBar, m_scene);
    m_navigation = std::make_unique<NavigationAdapter>(tabBar, m_scene);
    m_life = std::make_unique<WindowLife>(*m_window, m_delegate);
    tabBar->appear();

    m_window->setTitle(QStringLiteral("Velmora"));
    m_window->setColor(Qt::black);
    m_window->setResizeMode(QQuickView::SizeRootObjectToView);
    m_window->engine()->addImportPath(QStringLiteral("qrc:/")); // where the program's own module is
    m_window->engine()->addImageProvider(QLatin1String(Artwork::kProviderName), new Artwork);
    m_window->setInitialProperties({{QStringLiteral("scene"), QVariant::fromValue(&m_scene)},
                                    {QStringLiteral("tabs"), QVariant::fromValue(m_tabBar.get())},
                                    {QStringLiteral("navigation"), QVariant::fromValue(m_navigation.get())},
                                    {QStringLiteral("alerts"), QVariant::fromValue(&m_alerts)}});
    m_window->setSource(QUrl(QStringLiteral("qrc:/Velmora/Main.qml")));

    const auto follow = [this] { followWindow(); };
    QObject::connect(m_window.get(), &QWindow::widthChanged, &m_scene, follow);
    QObject::connect(m_window.get(), &QWindow::heightChanged, &m_scene, follow);
    QObject::connect(m_window.get(), &QWindow::screenChanged, &m_scene, follow);
}

Application::~Application() {
    // QML first, for it still refers to what it shows.
    m_window.reset();
}

void Application::followWindow() {
    m_scene.setWindow(QSizeF(m_window->size()), m_window->effectiveDevicePixelRatio());
}

} // namespace velmora
