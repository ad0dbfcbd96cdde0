#pragma once

#include "app/VelmoraAppDelegate.h"
#include "platform/machine/Alert.h"
#include "platform/machine/Device.h"
#include "platform/machine/DocumentsFolder.h"
#include "platform/machine/LinkOpener.h"
#include "platform/machine/Pasteboard.h"
#include "platform/machine/Sound.h"
#include "platform/machine/TextMeasure.h"
#include "platform/machine/Timer.h"
#include "platform/screens/ScreenMetrics.h"
#include "ui/adapters/NavigationAdapter.h"
#include "ui/adapters/SceneAdapter.h"
#include "ui/adapters/TabBarAdapter.h"
#include "ui/machine/AlsaSoundPlayer.h"
#include "ui/machine/QtAlertPresenter.h"
#include "ui/machine/QtDocumentsFolder.h"
#include "ui/machine/QtLinkOpener.h"
#include "ui/machine/QtPasteboard.h"
#include "ui/machine/QtTextMeasure.h"
#include "ui/machine/QtTimerService.h"
#include "ui/machine/WindowLife.h"

#include <QQuickView>

#include <memory>

namespace velmora {

/// The whole program on Qt: this machine's services, the start-up below, and the window that shows it.
/// Needs a QGuiApplication; one at a time.
class Application final {
public:
    /// Starts the program and builds its window, which show() of the window brings up.
    Application();
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    QQuickView& window() { return *m_window; }
    VelmoraAppDelegate& delegate() { return m_delegate; }
    QtAlertPresenter& alerts() { return m_alerts; }

private:
    void followWindow();

    SceneAdapter m_scene;
    QtAlertPresenter m_alerts;
    QtPasteboard m_pasteboard;
    QtTextMeasure m_textMeasure;
    QtTimerService m_timers;
    QtLinkOpener m_links;
    QtDocumentsFolder m_documents;
    AlsaSoundPlayer m_sounds;
    DeviceScope m_deviceScope{m_scene};
    ScreenMetricsScope m_metricsScope{m_scene};
    AlertPresenterScope m_alertScope{m_alerts};
    PasteboardScope m_pasteboardScope{m_pasteboard};
    TextMeasureScope m_textScope{m_textMeasure};
    TimerServiceScope m_timerScope{m_timers};
    LinkOpenerScope m_linkScope{m_links};
    DocumentsFolderScope m_documentsScope{m_documents};
    SoundPlayerScope m_soundScope{m_sounds};

    VelmoraAppDelegate m_delegate;
    std::unique_ptr<TabBarAdapter> m_tabBar;
    std::unique_ptr<NavigationAdapter> m_navigation;
    std::unique_ptr<QQuickView> m_window;
    std::unique_ptr<WindowLife> m_life;
};

} // namespace velmora
