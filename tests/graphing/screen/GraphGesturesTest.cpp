// Fingers, wheel and the trace, by what the model's bounds and the labels say.

#include "tests/graphing/GraphFixture.h"

#include "platform/machine/Device.h"
#include "platform/machine/Pasteboard.h"
#include "platform/screens/TapCounter.h"

namespace velmora {
namespace {

class GraphGestures : public GraphFixture {
protected:
    GraphGestures() {
        setBounds(-16, 16, -20, 20); // ten points a unit, both ways
        controller->viewDidAppear(false);
    }
    static void expectBounds(double xMin, double xMax, double yMin, double yMax) {
        EXPECT_NEAR(Model::m().xMinForGraph(), xMin, 1e-5);
        EXPECT_NEAR(Model::m().xMaxForGraph(), xMax, 1e-5);
        EXPECT_NEAR(Model::m().yMinForGraph(), yMin, 1e-5);
        EXPECT_NEAR(Model::m().yMaxForGraph(), yMax, 1e-5);
    }
};

TEST_F(GraphGestures, aPanFollowsTheFinger) {
    begin({{1, {100, 100}}});
    moveTo({{1, {101, 100}}});
    expectBounds(-16, 16, -20, 20); // too small a move
    moveTo({{1, {102, 100}}});
    expectBounds(-16.2, 15.8, -20, 20); // small ones add up
    moveTo({{1, {102, 130}}});
    expectBounds(-16.2, 15.8, -17, 23);
    // A second finger ends the pan; when it has gone the pan goes on from where the first one is then.
    begin({{1, {102, 130}}, {2, {200, 130}}});
    end({{1, {102, 130}}, {2, {200, 130}}}, 1);
    moveTo({{1, {150, 180}}});
    expectBounds(-16.2, 15.8, -17, 23);
    moveTo({{1, {140, 180}}});
    expectBounds(-15.2, 16.8, -17, 23);
}

TEST_F(GraphGestures, aPinchZoomsItsWay) {
    struct Row {
        Point to; ///< of the second finger, which starts 100 right of and 100 below the first
        double factorX;
        double factorY;
    };
    const double apart = std::hypot(100, 100);
    const auto factor = [&](double x, double y) { return std::pow(1.25, (apart - std::hypot(x, y)) / 15); };
    for (const Row& row : {Row{{130, 110}, factor(130, 110), 1}, Row{{110, 130}, 1, factor(110, 130)},
                           Row{{130, 130}, factor(130, 130), factor(130, 130)},
                           Row{{70, 70}, factor(70, 70), factor(70, 70)}, Row{{105, 105}, 1, 1},
                           // a jump of more than ten times counts as eight steps
                           Row{{300, 300}, std::pow(1.25, -8), std::pow(1.25, -8)}}) {
        setBounds(-16, 16, -20, 20);
        controller->viewDidAppear(false);
        begin({{2, {110, 110}}, {1, {10, 10}}});
        moveTo({{1, {10, 10}}, {2, {row.to.x + 10, row.to.y + 10}}});
        expectBounds(-16 * row.factorX, 16 * row.factorX, -20 * row.factorY, 20 * row.factorY);
        EXPECT_EQ(controller->zoomMode(), 0);
        end({{1, {10, 10}}, {2, row.to}});
    }
}

TEST_F(GraphGestures, aPinchDependsOnDeviceAndScale) {
    PlainDevice tablet(DeviceClass::Tablet);
    {
        const DeviceScope scope(tablet);
        begin({{1, {0, 0}}, {2, {0, 100}}});
        moveTo({{1, {0, 0}}, {2, {0, 125}}});
        expectBounds(-16, 16, -20, 20);
        moveTo({{1, {0, 0}}, {2, {0, 160}}});
        expectBounds(-16, 16, -20 / 1.21, 20 / 1.21);
        end({{1, {0, 0}}, {2, {0, 160}}});
    }
    Model::m().setSameScaleXAndY(true);
    setBounds(-16, 16, -20, 20);
    controller->viewDidAppear(false);
    begin({{1, {0, 0}}, {2, {0, 100}}});
    moveTo({{1, {0, 0}}, {2, {0, 115}}});
    redrawn();
    expectBounds(-12.8, 12.8, -20, 12); // y follows x from its lower end
    setBounds(-16, 16, 2e7, 0);         // and finds back from a range without a height
    frame();
    expectBounds(-16, 16, 2e7, 2e7 + 40);
}

TEST_F(GraphGestures, aThirdFingerEndsAPinch) {
    begin({{1, {0, 0}}, {2, {100, 0}}});
    begin({{1, {0, 0}}, {2, {100, 0}}, {3, {50, 50}}});
    moveTo({{1, {0, 0}}, {2, {200, 0}}, {3, {50, 50}}});
    end({{1, {0, 0}}, {2, {200, 0}}, {3, {50, 50}}}, 2);
    moveTo({{1, {0, 0}}, {2, {230, 0}}});
    expectBounds(-16, 16, -20, 20);
    moveTo({{1, {0, 0}}, {2, {245, 0}}});
    expectBounds(-12.8, 12.8, -20, 20);
}

TEST_F(GraphGestures, zoomingEndsWhereNumbersDo) {
    setBounds(1e6 - 1, 1e6 + 1, -20, 20);
    controller->viewDidAppear(false);
    for (int i = 0; i < 100; ++i) {
        view().zoom(0.2, 1);
    }
    EXPECT_NEAR(Model::m().xMaxForGraph() - 1e6, 1e-4, 1e-9);
    controller->wheelTurned({160, 200}, 1, true, false);
    EXPECT_NEAR(Model::m().xMaxForGraph() - 1e6, 1e-4, 1e-9);
    controller->wheelTurned({160, 200}, -1, true, false);
    EXPECT_NEAR(Model::m().xMaxForGraph() - 1e6, 1.25e-4, 1e-9);
    for (int i = 0; i < 2000; ++i) {
        view().zoom(5, 5);
        view().move(1e30F, 0);
    }
    EXPECT_TRUE(view().viewport().isUsable());
    frame();
    view().motionEnded(); // a shake
    expectBounds(-10, 10.062695924764892, -10, 10);
    Model::m().setShakeToResetGraph(false);
    view().move(10, 0);
    view().motionEnded();
    EXPECT_NE(Model::m().xMinForGraph(), -10);
}

TEST_F(GraphGestures, aWheelZoomsAboutThePointer) {
    controller->wheelTurned({80, 100}, 1, false, false);
    expectBounds(-14.4, 11.2, -14, 18);
    controller->wheelTurned({80, 100}, -1, false, false);
    controller->wheelTurned({80, 100}, 1, true, false);
    expectBounds(-14.4, 11.2, -20, 20);
    controller->wheelTurned({80, 100}, 1, false, true);
    expectBounds(-14.4, 11.2, -14, 18);
}

TEST_F(GraphGestures, aTraceSnapsToWhatItLooksFor) {
    const double pi = std::acos(-1.0);
    struct Row {
        const char* first;
        const char* second;
        int choice;
        double x; ///< of the double tap, in units of the graph
        double found;
    };
    for (const Row& row :
         {Row{"x", "", 1, 1, 0}, Row{"x ^ 2 - 2", "", 1, 1, std::sqrt(2)},
          Row{"x ^ 2 - 1.1", "", 1, 0.1, std::sqrt(1.1)}, Row{"x ^ 2 - 1.1", "", 1, -0.2, -std::sqrt(1.1)},
          Row{"sin( x )", "", 1, 5, 2 * pi}, Row{"x ^ 2 - 1", "", 1, 9, 9}, // too far off
          Row{"1 / ( x - 1 )", "", 1, 3, 3},                                // a pole is no root
          Row{"sin( x )", "cos( x )", 2, 1, pi / 4}, Row{"x ^ 2", "2 * x", 2, 2.5, 2},
          Row{"x ^ 2", "", 3, 0.3, 0}, Row{"sin( x )", "", 3, 2, pi / 2}, Row{"cos( x )", "", 3, 3.5, pi},
          Row{"4", "", 3, 2, 2}, Row{"x ^ 2 + 100", "", 3, 0.3, 0.3}, // out of sight
          Row{"abs( x - 1 ) + 1", "", 3, 2, 1}, Row{"x ^ 2", "", 4, 3, 3}}) {
        setEquation(0, row.first);
        setEquation(1, row.second);
        trace(160 + 10 * row.x, row.choice);
        EXPECT_EQ(static_cast<int>(view().traceMode()), (std::array{0, 2, 3, 4, 1})[std::size_t(row.choice)]);
        EXPECT_NEAR(view().viewport().coordXWithScreenX(view().screenXForTracing()), row.found, 1e-5)
            << row.first << " " << row.choice << " from " << row.x;
        doubleTap(0);
        EXPECT_EQ(view().traceMode(), TraceMode::None);
        EXPECT_TRUE(alerts.alerts().empty()) << "a double tap only ends the trace";
    }
}

TEST_F(GraphGestures, arrowsMoveTheTraceLine) {
    const auto x = [&] {
        redrawn();
        return view().viewport().coordXWithScreenX(view().screenXForTracing());
    };
    setEquation(0, "sin( x )");
    trace(180, 4);
    controller->pressHardwareKey("Right");
    EXPECT_NEAR(x(), 2.1, 1e-5) << "by a point";
    controller->pressHardwareKey("Up");
    doubleTap(0);
    trace(160, 1);
    const double pi = std::acos(-1.0);
    for (const double root : {pi, 2 * pi, 3 * pi}) {
        controller->pressHardwareKey("Right");
        EXPECT_NEAR(x(), root, 1e-5) << "to the next root";
    }
    for (int i = 0; i < 9; ++i) {
        controller->pressHardwareKey("Left");
    }
    EXPECT_NEAR(x(), -5 * pi, 1e-5) << "the last one on screen";
    expectBounds(-16, 16, -20, 20);
}

TEST_F(GraphGestures, aTraceShowsValuesAndMarks) {
    setEquation(0, "x ^ 2");
    setEquation(1, "sqrt( x )");
    setEquation(2, "x + 100"); // out of sight at the line
    doubleTap(180);
    ASSERT_EQ(alerts.alerts().front().title, "Trace options");
    EXPECT_EQ(alerts.alerts().front().message, "");
    EXPECT_EQ(alerts.alerts().front().buttons,
              (std::vector<std::string>{"Cancel", "Find roots", "Find intersections",
                                        "Find minima and maxima", "Just trace the graph"}));
    alerts.choose(0);
    EXPECT_EQ(view().traceMode(), TraceMode::None);
    EXPECT_EQ(view().screenXForTracing(), 180);
    trace(180, 4);
    EXPECT_EQ(label(0), "x=2");
    EXPECT_EQ(view().graphLabelArray().front().truncation, TextTruncation::Clip);
    EXPECT_EQ(label(1), "4");
    EXPECT_EQ(label(2), "1.41421 (complex values not shown)");
    EXPECT_EQ(label(3), "102");
    EXPECT_EQ(label(4), "Double tap when done");
    const auto commands = redrawn().commands;
    std::vector<RecordingContext::Command> circles;
    std::ranges::copy_if(commands, std::back_inserter(circles), [](const auto& command) {
        return command.kind == RecordingContext::Kind::FillEllipse;
    });
    ASSERT_EQ(circles.size(), 2U);
    EXPECT_EQ(circles[0].a, 178);
    EXPECT_EQ(circles[0].b, 158);
    moveTo({{1, {140, 50}}});
    redrawn();
    EXPECT_EQ(label(0), "x=-2");
    EXPECT_EQ(label(2), "complex (complex values not shown)");
    expectBounds(-16, 16, -20, 20);
    Model::m().setGraphType(1);
    EXPECT_EQ(view().traceMode(), TraceMode::None) << "only functions of x are traced";
    doubleTap(100);
    EXPECT_TRUE(alerts.alerts().empty());
}

TEST_F(GraphGestures, aPictureIsSharedOrItIsSaidWhyNot) {
    class Picture final : public GraphPicture {
    public:
        std::vector<std::uint8_t> png() override { return {1, 2, 3}; }
        std::optional<std::string> savePng() override { return "here.png"; }
    } picture;
    controller->setPicture(&picture);
    controller->showGraphMenu();
    alerts.choose(2);
    EXPECT_EQ(generalPasteboard().data(kPngType), (PropertyData{1, 2, 3}));
    controller->showGraphMenu();
    alerts.choose(3);
    EXPECT_EQ(alerts.alerts().front().message, "The picture is saved as here.png.");
    alerts.choose(0);
    controller->setPicture(nullptr);
    controller->copyPicture();
    EXPECT_EQ(alerts.alerts().front().message, "There is no picture to copy.");
    EXPECT_EQ(generalPasteboard().data(kPngType), (PropertyData{1, 2, 3}));
}

TEST(TapCounter, countsTapsInARow) {
    TapCounter taps;
    EXPECT_EQ(taps.touchBegan({10, 10}, 1.0), 1);
    EXPECT_EQ(taps.touchEnded({12, 10}, 1.1), 1);
    EXPECT_EQ(taps.touchBegan({20, 10}, 1.3), 2);
    EXPECT_EQ(taps.touchEnded({20, 10}, 1.4), 2);
    EXPECT_EQ(taps.touchBegan({90, 10}, 1.5), 1) << "elsewhere";
    EXPECT_EQ(taps.touchEnded({120, 10}, 1.6), 0) << "has moved";
    EXPECT_EQ(taps.touchBegan({120, 10}, 1.7), 1);
    EXPECT_EQ(taps.touchEnded({120, 10}, 3), 0) << "has rested";
    EXPECT_EQ(taps.touchBegan({120, 10}, 3.1), 1);
    EXPECT_EQ(taps.touchEnded({120, 10}, 3.2), 1);
    EXPECT_EQ(taps.touchBegan({120, 10}, 4), 1) << "too late";
}

} // namespace
} // namespace velmora
