#include "tests/ui/RunningProgram.h"

#include "calculator/model/Model.h"
#include "platform/files/SavingRegistry.h"
#include "platform/machine/Clock.h"
#include "platform/screens/ScreenRegistry.h"

#include <QAccessible>
#include <QDir>
#include <QImage>
#include <QPointingDevice>
#include <QStyleHints>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace velmora {

RunningProgram::RunningProgram(QSize windowSize) : m_touchScreen(QTest::createTouchDevice()) {
    qputenv("XDG_DATA_HOME", m_home.path().c_str());
    start(windowSize);
}

void RunningProgram::start(QSize windowSize) {
    Model::resetForTests();
    SavingRegistry::shared().reset();
    ScreenRegistry::shared().reset();
    m_application = std::make_unique<Application>();
    window().resize(windowSize);
    window().show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window()));
    EXPECT_EQ(window().status(), QQuickView::Ready);
    window().requestActivate(); // hardware keys go to the window in front
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    settle();
}

RunningProgram::~RunningProgram() = default;

void RunningProgram::startAgain() {
    const QSize size = window().size();
    m_application.reset();
    start(size);
}

void RunningProgram::resize(QSize size) {
    window().resize(size);
    settle();
}

void RunningProgram::settle() {
    QCoreApplication::sendPostedEvents();
    QTest::qWait(1);
}

void RunningProgram::collect(QQuickItem* item, std::vector<QQuickItem*>& found) const {
    if (!item->isVisible()) {
        return;
    }
    found.push_back(item);
    for (QQuickItem* child : item->childItems()) {
        collect(child, found);
    }
}

QString RunningProgram::spokenName(const QQuickItem* item) const {
    QAccessibleInterface* accessible =
        QAccessible::queryAccessibleInterface(const_cast<QQuickItem*>(item)); // Qt's own signature
    return accessible != nullptr ? accessible->text(QAccessible::Name) : QString();
}

std::vector<QQuickItem*> RunningProgram::items(int accessibleRole) {
    std::vector<QQuickItem*> all;
    collect(window().rootObject(), all);
    std::erase_if(all, [&](QQuickItem* item) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(item);
        return accessible == nullptr || accessible->role() != accessibleRole;
    });
    return all;
}

bool RunningProgram::isOnScreen(const QString& name) {
    std::vector<QQuickItem*> all;
    collect(window().rootObject(), all);
    return std::ranges::any_of(all, [&](const QQuickItem* item) { return spokenName(item) == name; });
}

QQuickItem* RunningProgram::item(const QString& name) {
    std::vector<QQuickItem*> all;
    collect(window().rootObject(), all);
    const auto found = std::ranges::find_if(all, [&](QQuickItem* item) { return spokenName(item) == name; });
    if (found == all.end()) {
        ADD_FAILURE() << "nothing on screen is called " << name.toStdString();
        return nullptr;
    }
    return *found;
}

QString RunningProgram::line() {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(item(QStringLiteral("Line")));
    return accessible != nullptr ? accessible->text(QAccessible::Description) : QString();
}

QStringList RunningProgram::historyRows() {
    settle();
    std::vector<QQuickItem*> rows = items(QAccessible::ListItem);
    const QRectF view = frameInWindow(items(QAccessible::List).at(0));
    // Lists keep a few rows ready beyond their edges.
    std::erase_if(rows, [&](const QQuickItem* row) { return !view.contains(frameInWindow(row).center()); });
    std::ranges::sort(rows, {}, [](const QQuickItem* row) { return row->y(); });
    QStringList names;
    for (const QQuickItem* row : rows) {
        names.append(spokenName(row));
    }
    return names;
}

QRectF RunningProgram::frameInWindow(const QQuickItem* item) const {
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

QPoint RunningProgram::pointOf(const QQuickItem* item, double across, double down) const {
    return item == nullptr
               ? QPoint(-1, -1)
               : item->mapToScene(QPointF(item->width() * across, item->height() * down)).toPoint();
}

void RunningProgram::clickAt(QPoint point) {
    // A double click is another gesture; clicks of a test follow one another faster than a person's.
    QTest::mouseClick(&window(), Qt::LeftButton, Qt::NoModifier, point,
                      QGuiApplication::styleHints()->mouseDoubleClickInterval() + 1);
    settle();
}

void RunningProgram::click(const QString& name) {
    if (const QQuickItem* target = item(name)) {
        QTest::mouseClick(&window(), Qt::LeftButton, Qt::NoModifier, pointOf(target));
        settle();
    }
}

void RunningProgram::clickAll(const QString& names) {
    for (const QString& name : names.split(QStringLiteral(", "))) {
        click(name);
    }
}

void RunningProgram::touch(const QString& name) {
    const QPoint point = pointOf(item(name));
    QTest::touchEvent(&window(), m_touchScreen.get()).press(0, point).commit();
    QTest::touchEvent(&window(), m_touchScreen.get()).release(0, point).commit();
    settle();
}

void RunningProgram::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window(), key, modifiers);
    settle();
}

void RunningProgram::type(const QString& text) {
    for (const QChar character : text) {
        // The text is what counts; keys that no name is known for come with key 0.
        QTest::sendKeyEvent(QTest::Click, &window(), Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
    settle();
}

void RunningProgram::scrollTo(const QString& name) {
    static_cast<void>(QTest::qWaitFor([&] { return isOnScreen(name); }, 2000)); // rows come by and by
    const QQuickItem* target = item(name);
    QQuickItem* list = target != nullptr ? target->parentItem() : nullptr;
    while (list != nullptr && !list->inherits("QQuickFlickable")) {
        list = list->parentItem();
    }
    if (list == nullptr) {
        return;
    }
    const QRectF view(0, 0, list->width(), list->height());
    const auto place = [&] {
        return list->mapFromItem(target, QPointF(target->width(), target->height()) / 2);
    };
    // A row that has only just been made gets its place a moment later.
    static_cast<void>(QTest::qWaitFor(
        [&] {
            const double end = list->property("originY").toDouble() +
                               list->property("contentHeight").toDouble() - list->height();
            const double wanted = list->property("contentY").toDouble() + place().y() - list->height() / 2;
            list->setProperty("contentY", std::clamp(wanted, 0.0, std::max(0.0, end)));
            settle();
            return view.contains(place());
        },
        2000));
}

void RunningProgram::wheel(QPoint point, int notches) {
    constexpr int eighthsOfADegree = 120;
    QWheelEvent event(point, window().mapToGlobal(point), {}, {0, notches * eighthsOfADegree}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    event.setTimestamp(static_cast<quint64>(monotonicSeconds() * 1000)); // lists scroll by the time between
    QCoreApplication::sendEvent(&window(), &event);
    QTest::qWait(400); // the list glides to its place
}

void RunningProgram::drag(QPoint from, QPoint to) {
    constexpr int steps = 10;
    QTest::touchEvent(&window(), m_touchScreen.get()).press(0, from).commit();
    for (int step = 1; step <= steps; ++step) {
        QTest::qWait(16); // the speed of a finger
        const QPoint point = from + (to - from) * step / steps;
        QTest::touchEvent(&window(), m_touchScreen.get()).move(0, point).commit();
    }
    QTest::qWait(200); // rests before it leaves, so that the list does not fly on
    QTest::touchEvent(&window(), m_touchScreen.get()).release(0, to).commit();
    QTest::qWait(300);
}

void RunningProgram::takePicture(const QString& name) {
    const QString folder = qEnvironmentVariable("VELMORA_SCREENSHOTS");
    if (!folder.isEmpty()) {
        settle();
        EXPECT_TRUE(QDir().mkpath(folder));
        EXPECT_TRUE(window().grabWindow().save(folder + QLatin1Char('/') + name + QStringLiteral(".png")));
    }
}

} // namespace velmora
