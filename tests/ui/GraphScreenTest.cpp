// The graph under real fingers, mouse and wheel.

#include "tests/engine/TokenLine.h"
#include "tests/ui/RunningProgram.h"

#include "calculator/model/Model.h"
#include "graphing/screen/GraphViewController.h"
#include "platform/machine/Pasteboard.h"
#include "ui/adapters/GraphAdapter.h"

#include <QDir>
#include <QImage>
#include <QPointingDevice>
#include <QStandardPaths>
#include <QTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

void store(ExpressionList& list, int slot, const char* line) {
    list.setExpressionAtIndex(slot, ExpressionWithTokenArray(tokens(line)), true);
}

struct Bounds {
    double xMin;
    double xMax;
    double yMin;
    double yMax;
};

Bounds bounds() {
    const Model& model = Model::m();
    return {model.xMinForGraph(), model.xMaxForGraph(), model.yMinForGraph(), model.yMaxForGraph()};
}

double width(const Bounds& b) { return b.xMax - b.xMin; }
double height(const Bounds& b) { return b.yMax - b.yMin; }

class GraphScreen : public testing::TestWithParam<QSize> {
protected:
    GraphScreen() {
        store(Model::m().equations(), 0, "sin( x ) / x");
        store(Model::m().equations(), 1, "tan( x )");
    }
    void openGraph() {
        program.click(utf8("Graph"));
        graph = program.item(utf8("Graph"));
        for (QQuickItem* item : program.items(QAccessible::Graphic)) {
            graph = item;
        }
    }
    QString told() const {
        return graph->property("screen").value<QObject*>()->property("spokenGraph").toString();
    }
    void picture(const char* name) {
        program.takePicture(utf8(name) + u'-' + QString::number(GetParam().width()) + u'x' +
                            QString::number(GetParam().height()));
    }
    /// A place on the graph by fractions of its extent, in the window.
    QPoint at(double across, double down) { return program.pointOf(graph, across, down); }
    /// Two fingers move from one pair of places to another.
    void pinch(QPoint from1, QPoint from2, QPoint to1, QPoint to2) {
        QTest::touchEvent(&program.window(), program.touchScreen()).press(0, from1).press(1, from2).commit();
        constexpr int steps = 8;
        for (int step = 1; step <= steps; ++step) {
            QTest::touchEvent(&program.window(), program.touchScreen())
                .move(0, from1 + (to1 - from1) * step / steps)
                .move(1, from2 + (to2 - from2) * step / steps)
                .commit();
        }
        QTest::touchEvent(&program.window(), program.touchScreen()).release(0, to1).release(1, to2).commit();
        program.settle();
    }
    void doubleTap(QPoint place) {
        for (int tap = 0; tap < 2; ++tap) {
            QTest::touchEvent(&program.window(), program.touchScreen()).press(0, place).commit();
            QTest::touchEvent(&program.window(), program.touchScreen()).release(0, place).commit();
        }
        program.settle();
    }

    RunningProgram program{GetParam()};
    QQuickItem* graph = nullptr;
};

TEST_P(GraphScreen, fingersPanPinchAndTrace) {
    openGraph();
    picture("graph");
    const Bounds start = bounds();
    program.drag(at(0.5, 0.5), at(0.75, 0.5));
    EXPECT_NEAR(bounds().xMin, start.xMin - width(start) / 4, width(start) / 40) << "follows the finger";
    EXPECT_NEAR(width(bounds()), width(start), 1e-5);
    program.drag(at(0.75, 0.5), at(0.75, 0.75));
    EXPECT_NEAR(bounds().yMin, start.yMin + height(start) / 4, height(start) / 40);

    // Spreading the fingers brings the graph closer: across, upward, both ways.
    struct Pinch {
        double across;
        double down;
        bool horizontal;
        bool vertical;
    };
    for (const Pinch& way :
         {Pinch{0.3, 0, true, false}, Pinch{0, 0.3, false, true}, Pinch{0.2, 0.2, true, true}}) {
        const Bounds before = bounds();
        pinch(at(0.45, 0.45), at(0.55, 0.55), at(0.45 - way.across, 0.45 - way.down),
              at(0.55 + way.across, 0.55 + way.down));
        EXPECT_EQ(width(bounds()) < 0.9 * width(before), way.horizontal) << way.across << way.down;
        EXPECT_EQ(height(bounds()) < 0.9 * height(before), way.vertical) << way.across << way.down;
    }
    picture("graph-closer");

    program.click(utf8("Graph menu"));
    picture("graph-menu");
    program.click(utf8("Reset the view"));
    EXPECT_EQ(bounds().xMax, start.xMax);
    EXPECT_EQ(bounds().yMin, start.yMin);

    doubleTap(at(0.7, 0.3));
    ASSERT_TRUE(program.isOnScreen(utf8("Find intersections")));
    picture("trace-menu");
    program.click(utf8("Just trace the graph"));
    program.drag(at(0.7, 0.3), at(0.6, 0.3));
    EXPECT_EQ(bounds().xMin, start.xMin) << "the line moves, not the graph";
    EXPECT_TRUE(QTest::qWaitFor([&] { return told().startsWith(utf8("x=2.0")); })) << told().toStdString();
    EXPECT_TRUE(told().contains(utf8("Double tap when done")));
    picture("graph-traced");
    doubleTap(at(0.5, 0.5));
    EXPECT_FALSE(program.isOnScreen(utf8("Find roots"))) << "a double tap only ends the trace";
}

TEST_P(GraphScreen, mouseWheelAndKeysWorkItToo) {
    openGraph();
    const Bounds start = bounds();
    const auto wheel = [&](QPoint place, int notches, Qt::KeyboardModifiers held) {
        QWheelEvent event(place, program.window().mapToGlobal(place), {}, {0, notches * 120}, Qt::NoButton,
                          held, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&program.window(), &event);
        program.settle();
    };
    wheel(at(0.25, 0.5), 2, Qt::NoModifier);
    const double factor = width(bounds()) / width(start);
    EXPECT_NEAR(factor, GetParam().width() < 600 ? 0.64 : 1 / 1.21, 1e-6);
    EXPECT_NEAR(bounds().xMin + width(bounds()) / 4, start.xMin + width(start) / 4, width(start) / 100)
        << "what is below the pointer stays";
    wheel(at(0.5, 0.5), -2, Qt::ShiftModifier);
    EXPECT_NEAR(width(bounds()), width(start), 1e-6);
    EXPECT_NEAR(height(bounds()), factor * height(start), 1e-6);
    wheel(at(0.5, 0.5), -2, Qt::ControlModifier);
    EXPECT_NEAR(height(bounds()), height(start), 1e-6);
    program.press(Qt::Key_R);
    program.press(Qt::Key_Right);
    EXPECT_NEAR(bounds().xMin, start.xMin + width(start) / 10, width(start) / 100);
    program.press(Qt::Key_R);
    QTest::mouseDClick(&program.window(), Qt::LeftButton, Qt::NoModifier, at(0.6, 0.5));
    program.settle();
    program.click(utf8("Cancel"));
    EXPECT_EQ(bounds().xMin, start.xMin);
    program.press(Qt::Key_Return);
    program.click(utf8("Find roots"));
    picture("graph-root");
    program.press(Qt::Key_Escape);

    auto* screen = qobject_cast<GraphAdapter*>(graph->property("screen").value<QObject*>());
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return !told().startsWith(u"x=") && screen->controller().graphView().isRefined();
    })) << "nothing of the picture is missing";
    program.press(Qt::Key_C, Qt::ControlModifier);
    const auto png = generalPasteboard().data(kPngType);
    ASSERT_TRUE(png);
    const QImage copied = QImage::fromData(png->data(), int(png->size()), "PNG");
    EXPECT_EQ(copied.width(), qRound(graph->mapRectToScene({0, 0, graph->width(), 1}).width()));
    QDir pictures(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
    QTest::mouseClick(&program.window(), Qt::RightButton, Qt::NoModifier, at(0.5, 0.5));
    program.settle();
    program.click(utf8("Save picture"));
    EXPECT_TRUE(program.isOnScreen(utf8("OK")));
    pictures.refresh();
    const QStringList saved = pictures.entryList({utf8("Graph*")});
    ASSERT_EQ(saved.size(), 1);
    EXPECT_EQ(QImage(pictures.filePath(saved[0])), copied);
    EXPECT_TRUE(QFile::remove(pictures.filePath(saved[0])));
}

TEST_P(GraphScreen, allKindsAreShownOnBothGrounds) {
    Model& model = Model::m();
    store(model.polarR(), 0, "8 * sin( 3 * θ )");
    store(model.polarR(), 1, "θ");
    store(model.parametricX(), 0, "8 * cos( 3 * t )");
    store(model.parametricY(), 0, "8 * sin( 2 * t )");
    model.setTEndForParametricGraph(6.2831853);
    store(model.equations(), 2, "x ^ 3 / 20 - x");
    store(model.equations(), 3, "sqrt( x ) - 4");
    for (const bool black : {false, true}) {
        model.setGraphBackgroundIsBlack(black);
        for (int type = 0; type < 3; ++type) {
            model.setGraphType(type);
            openGraph();
            picture(
                (std::string("graph-kind") + std::to_string(type) + (black ? "-black" : "-white")).c_str());
            const QImage shown = program.window().grabWindow();
            const QColor corner = shown.pixelColor(at(0.02, 0.97));
            EXPECT_EQ(corner.lightness() < 128, black);
            program.click(utf8("Equations"));
        }
    }
    for (int slot = 0; slot < 4; ++slot) {
        store(model.equations(), slot, "");
    }
    model.setGraphType(0);
    openGraph();
    picture("graph-nothing");
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return told().startsWith(utf8("There are no graphable equations.  To enter")); }));
}

INSTANTIATE_TEST_SUITE_P(Sizes, GraphScreen, testing::Values(QSize(375, 667), QSize(768, 1024)),
                         [](const auto& size) { return size.param.width() < 600 ? "phone" : "tablet"; });

} // namespace
} // namespace velmora
