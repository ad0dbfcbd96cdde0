#pragma once

#include "tests/platform/files/TemporaryFolder.h"
#include "ui/Application.h"

#include <QPointF>
#include <QQuickItem>
#include <QSize>
#include <QString>

#include <memory>
#include <ostream>
#include <vector>

class QPointingDevice;

/// How a failed test shows a text; the name is the test library's.
inline void PrintTo(const QString& text, std::ostream* out) { // NOLINT(readability-identifier-naming)
    *out << '"' << text.toStdString() << '"';
}

namespace velmora {

/// The program from its launch on, in an offscreen window, with a folder of its own for the user's files.
/// Everything is found as a screen reader finds it, by its spoken name, and worked by real events.
class RunningProgram {
public:
    explicit RunningProgram(QSize windowSize = {375, 667});
    ~RunningProgram();
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;

    Application& application() { return *m_application; }
    QQuickView& window() { return m_application->window(); }
    void resize(QSize size);
    /// Ends without another word, as a killed program does, and starts on the same files.
    void startAgain();

    // What is on screen.
    /// The visible item of that spoken name; null, with a failure, when there is none.
    QQuickItem* item(const QString& spokenName);
    bool isOnScreen(const QString& spokenName);
    /// All visible items of a role, in the order of the scene.
    std::vector<QQuickItem*> items(int accessibleRole);
    QString spokenName(const QQuickItem* item) const;
    QString line();
    /// The rows of the history in view, from the top: "input is output".
    QStringList historyRows();
    QRectF frameInWindow(const QQuickItem* item) const;
    /// A point of an item, from (0, 0) at its upper left to (1, 1) at its lower right, in the window.
    QPoint pointOf(const QQuickItem* item, double across = 0.5, double down = 0.5) const;

    // What a person does.
    void click(const QString& spokenName);
    /// Keys by their spoken names, separated by ", ".
    void clickAll(const QString& spokenNames);
    void clickAt(QPoint point);
    void touch(const QString& spokenName);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Characters of a hardware keyboard.
    void type(const QString& text);
    /// Scrolls a list until the row of that spoken name is in view.
    void scrollTo(const QString& spokenName);
    void wheel(QPoint point, int notches);
    void drag(QPoint from, QPoint to);
    /// Lets everything that is due happen.
    void settle();

    /// Writes a picture of the window to the folder that VELMORA_SCREENSHOTS names, if it does.
    void takePicture(const QString& name);

    QPointingDevice* touchScreen() { return m_touchScreen.get(); }

private:
    void start(QSize windowSize);
    void collect(QQuickItem* item, std::vector<QQuickItem*>& found) const;

    TemporaryFolder m_home;
    std::unique_ptr<QPointingDevice> m_touchScreen;
    std::unique_ptr<Application> m_application;
};

} // namespace velmora
