#include "graphing/screen/GraphViewController.h"

#include "calculator/model/GraphTypeTable.h"
#include "calculator/model/Model.h"
#include "platform/text/Log.h"

#include <array>
#include <charconv>
#include <limits>

namespace velmora {

namespace {

std::string fixedPoint(double number) {
    constexpr int decimals = 6;
    std::array<char, std::numeric_limits<double>::max_exponent10 + decimals + 4> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, decimals);
    return {text.data(), end.ptr};
}

} // namespace

GraphViewController::GraphViewController() { setTabImage("graph.png"); }

void GraphViewController::viewDidLoad() { m_gesture.reset(); }

void GraphViewController::viewWillAppear(bool /*animated*/) { m_graphView.setNeedsDisplay(); }

void GraphViewController::viewDidAppear(bool /*animated*/) {
    m_graphView.readBoundsFromModel();
    m_graphView.setNeedsDisplay();
    m_gesture.forgetZoomMode();
}

void GraphViewController::viewWillDisappear(bool /*animated*/) {
    m_gesture.forget();
    m_graphView.holdRefinement();
}

bool GraphViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

void GraphViewController::willAnimateRotation(Orientation /*to*/) { m_graphView.setNeedsDisplay(); }

// Fingers.

void GraphViewController::touchesBegan(const Touches& touches) {
    const GraphFingers fingers = sortedFingers(touches);
    m_graphView.holdRefinement();
    if (fingers.size() == 1) {
        m_gesture.fingerBegan(fingers.front());
    }
    if (m_graphView.traceMode() != TraceMode::None) {
        m_graphView.traceGraphWithSortedTouches(fingers);
    } else if (fingers.size() == 2) {
        m_gesture.pinchBegan(fingers);
    } else if (fingers.size() > 2) {
        m_gesture.forgetPinch();
    }
}

void GraphViewController::touchesMoved(const Touches& touches) {
    const GraphFingers fingers = sortedFingers(touches);
    if (m_graphView.traceMode() != TraceMode::None) {
        m_graphView.traceGraphWithSortedTouches(fingers);
    } else if (fingers.size() == 2) {
        m_gesture.zoomGraphWithSortedTouches(fingers, false);
    } else if (fingers.size() == 1) {
        m_gesture.moveGraphWithTouch(fingers, false);
    }
}

void GraphViewController::touchesEnded(const Touches& touches, std::size_t remaining) {
    const GraphFingers fingers = sortedFingers(touches);
    if (!fingers.empty()) {
        log("y=" + fixedPoint(fingers.front().place.y));
        if (fingers.front().tapCount == 2) {
            doubleTapped(fingers);
            m_gesture.forget();
        }
    }
    m_gesture.forgetPinch();
    if (remaining == 0) {
        m_graphView.resumeRefinement();
    }
}

void GraphViewController::touchesCancelled() {
    m_gesture.forget();
    m_graphView.resumeRefinement();
}

bool GraphViewController::canBeTraced() {
    const GraphTypeRow* type = graphTypeRow(Model::m().graphType());
    return type && type->canBeTraced;
}

void GraphViewController::doubleTapped(const GraphFingers& fingers) {
    if (!canBeTraced()) {
        return; // only functions of x are traced
    }
    if (m_graphView.traceMode() != TraceMode::None) {
        m_graphView.setTraceMode(TraceMode::None);
    } else {
        m_graphView.traceGraphWithSortedTouches(fingers);
        showFunctionTraceMenu();
    }
}

} // namespace velmora
