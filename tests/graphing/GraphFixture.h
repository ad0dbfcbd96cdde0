#pragma once

#include "calculator/model/Model.h"
#include "graphing/screen/GraphViewController.h"
#include "platform/machine/Alert.h"
#include "platform/machine/Timer.h"
#include "tests/engine/TokenLine.h"
#include "tests/graphing/RecordingContext.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace velmora {

/// The graph's screen on display, 320 by 400 points on a phone, with a model as at a first start.
class GraphFixture : public testing::Test {
protected:
    GraphFixture() {
        Model::resetForTests();
        controller->graphView().setSize({320.9, 400.2});
        controller->appear();
    }
    ~GraphFixture() override { Model::resetForTests(); }

    static void store(ExpressionList& list, int slot, const std::string& line) {
        list.setExpressionAtIndex(slot, ExpressionWithTokenArray(tokens(line)), false);
    }
    static void setEquation(int slot, const std::string& line) { store(Model::m().equations(), slot, line); }
    static void setBounds(double xMin, double xMax, double yMin, double yMax) {
        Model::m().setXMinForGraph(xMin);
        Model::m().setXMaxForGraph(xMax);
        Model::m().setYMinForGraph(yMin);
        Model::m().setYMaxForGraph(yMax);
    }
    /// The frame for the model's bounds.
    RecordingContext frame() {
        view().readBoundsFromModel();
        view().setNeedsDisplay();
        return redrawn();
    }
    RecordingContext redrawn() {
        RecordingContext context;
        view().drawRect(context);
        return context;
    }
    GraphView& view() { return controller->graphView(); }

    void begin(Touches touches) { controller->touchesBegan(std::move(touches)); }
    void moveTo(Touches touches) { controller->touchesMoved(std::move(touches)); }
    void end(Touches touches, std::size_t remaining = 0) {
        controller->touchesEnded(std::move(touches), remaining);
    }
    void doubleTap(double x) {
        begin({{1, {x, 100}, 2}});
        end({{1, {x, 100}, 2}});
    }
    /// Starts the trace at a place on the screen, with a choice of the menu.
    void trace(double x, int choice) {
        doubleTap(x);
        ASSERT_EQ(alerts.alerts().size(), 1U);
        alerts.choose(choice);
        redrawn();
    }
    std::string label(std::size_t line) { return view().graphLabelArray().at(line).text; }

    RecordingAlertPresenter alerts;
    AlertPresenterScope alertScope{alerts};
    ManualTimerService timers;
    TimerServiceScope timerScope{timers};
    std::shared_ptr<GraphViewController> controller = std::make_shared<GraphViewController>();
};

} // namespace velmora
