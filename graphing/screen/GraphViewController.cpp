#include "graphing/screen/GraphViewController.h"

#include "calculator/model/Model.h"
#include "engine/environment/Environment.h"
#include "platform/machine/Alert.h"
#include "platform/machine/Device.h"
#include "platform/machine/Pasteboard.h"
#include "platform/text/Log.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace velmora {

namespace {

constexpr Point kNoPan{-1, -1};

/// In the order of the fingers, which stays while they are down, and in single precision like all that is
/// on screen.
Touches sorted(Touches touches) {
    std::ranges::sort(touches, {}, [](const Touch& touch) { return touch.id; });
    for (Touch& touch : touches) {
        touch.location = {static_cast<float>(touch.location.x), static_cast<float>(touch.location.y)};
    }
    return touches;
}

std::string fixedPoint(double number) {
    constexpr int decimals = 6;
    std::array<char, std::numeric_limits<double>::max_exponent10 + decimals + 4> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, decimals);
    return {text.data(), end.ptr};
}

Point between(const Touches& touches) {
    return {touches[0].location.x - touches[1].location.x, touches[0].location.y - touches[1].location.y};
}

} // namespace

GraphViewController::GraphViewController() { setTabImage("graph.png"); }

void GraphViewController::viewDidLoad() {
    m_touchDistance = 0;
    m_touchLocation = {};
}

void GraphViewController::viewWillAppear(bool /*animated*/) { m_graphView.setNeedsDisplay(); }

void GraphViewController::viewDidAppear(bool /*animated*/) {
    m_graphView.readBoundsFromModel();
    m_graphView.setNeedsDisplay();
    m_zoomMode = ZoomMode::Undecided;
}

void GraphViewController::viewWillDisappear(bool /*animated*/) {
    forgetGesture();
    m_graphView.holdRefinement();
}

bool GraphViewController::shouldAutorotate(Orientation orientation) const {
    return Model::m().shouldAutorotateToInterfaceOrientation(orientation);
}

void GraphViewController::willAnimateRotation(Orientation /*to*/) { m_graphView.setNeedsDisplay(); }

// Fingers.

void GraphViewController::touchesBegan(const Touches& unsorted) {
    const Touches touches = sorted(unsorted);
    m_graphView.holdRefinement();
    if (touches.size() == 1) {
        m_touchLocation = touches.front().location;
        m_touchDistance = 0;
    }
    if (m_graphView.traceMode() != TraceMode::None) {
        m_graphView.traceGraphWithSortedTouches(touches);
        return;
    }
    if (touches.size() == 2) {
        m_touchLocation = kNoPan;
        m_touchDistance = distanceBetweenTouches(touches);
        if (m_zoomMode == ZoomMode::Undecided) {
            m_touchDifferenceVector = between(touches);
        }
    } else if (touches.size() > 2) {
        forgetPinch();
    }
}

void GraphViewController::touchesMoved(const Touches& unsorted) {
    const Touches touches = sorted(unsorted);
    if (m_graphView.traceMode() != TraceMode::None) {
        m_graphView.traceGraphWithSortedTouches(touches);
    } else if (touches.size() == 2) {
        zoomGraphWithSortedTouches(touches, false);
    } else if (touches.size() == 1) {
        moveGraphWithTouch(touches, false);
    }
}

void GraphViewController::touchesEnded(const Touches& unsorted, std::size_t remaining) {
    const Touches touches = sorted(unsorted);
    if (!touches.empty()) {
        log("y=" + fixedPoint(touches.front().location.y));
        if (touches.front().tapCount == 2) {
            doubleTapped(touches);
            forgetGesture();
        }
    }
    forgetPinch();
    if (remaining == 0) {
        m_graphView.resumeRefinement();
    }
}

void GraphViewController::touchesCancelled() {
    forgetGesture();
    m_graphView.resumeRefinement();
}

void GraphViewController::forgetGesture() {
    forgetPinch();
    m_zoomMode = ZoomMode::Undecided;
}

/// The number of fingers has changed: what comes next starts afresh, so the graph does not jump.
void GraphViewController::forgetPinch() {
    m_touchLocation = kNoPan;
    m_touchDistance = 0;
}

void GraphViewController::moveGraphWithTouch(const Touches& touches, bool smallMoveOK) {
    const Point location = touches.front().location;
    if (m_touchLocation.x < 0 && m_touchLocation.y < 0) {
        m_touchLocation = location;
        return;
    }
    const auto dx = static_cast<float>(location.x - m_touchLocation.x);
    const auto dy = static_cast<float>(location.y - m_touchLocation.y);
    constexpr float smallest = 2; // points; smaller ones add up
    if (!smallMoveOK && std::hypot(dx, dy) < smallest) {
        return;
    }
    m_graphView.move(-dx, dy); // the screen's y grows downward
    m_touchLocation = location;
}

float GraphViewController::distanceBetweenTouches(const Touches& touches) const {
    if (touches.size() != 2) {
        Environment::current().raiseDebugAlert(std::to_string(touches.size()) + " touches!  Should be 2.");
        constexpr float noDistance = -666;
        return noDistance;
    }
    const Point difference = between(touches);
    return static_cast<float>(std::hypot(difference.x, difference.y));
}

float GraphViewController::pinchDelta() const {
    constexpr float onTablet = 30;
    constexpr float onPhone = 15;
    return isTablet() ? onTablet : onPhone;
}

double GraphViewController::zoomBase() const {
    constexpr float onTablet = 1.1F;
    constexpr float onPhone = 1.25F;
    return isTablet() ? onTablet : onPhone;
}

/// In which direction the fingers have moved since the pinch began.
GraphViewController::ZoomMode GraphViewController::zoomModeOf(Point vector) const {
    const auto dx = static_cast<float>(m_touchDifferenceVector.x - vector.x);
    const auto dy = static_cast<float>(m_touchDifferenceVector.y - vector.y);
    constexpr double upright = 1000;
    constexpr double steep = 2.3;
    const double ratio = dx == 0 ? upright : std::fabs(dy / dx);
    if (Model::m().sameScaleXAndY() || !(ratio > 1 / steep)) {
        return ZoomMode::Horizontal; // with equal scales y follows
    }
    return ratio > steep ? ZoomMode::Vertical : ZoomMode::Both;
}

void GraphViewController::zoomGraphWithSortedTouches(const Touches& touches, bool smallZoomOK) {
    const float distance = distanceBetweenTouches(touches);
    if (distance < 0) {
        return;
    }
    if (m_touchDistance == 0) {
        m_touchDistance = distance;
        m_touchDifferenceVector = between(touches);
        return;
    }
    if (!smallZoomOK && std::fabs(distance - m_touchDistance) < pinchDelta()) {
        return;
    }
    if (m_zoomMode == ZoomMode::Undecided) {
        m_zoomMode = zoomModeOf(between(touches));
    }
    auto factor = static_cast<float>(std::pow(zoomBase(), (m_touchDistance - distance) / pinchDelta()));
    // A jump of the fingers is a jump of eight steps, of a phone's size on every device: intended.
    constexpr double phoneBase = 1.25;
    constexpr int steps = 8;
    if (factor < 0.1) {
        factor = static_cast<float>(std::pow(phoneBase, -steps));
    } else if (factor > 10) {
        factor = static_cast<float>(std::pow(phoneBase, steps));
    }
    m_touchDistance = distance;
    m_graphView.zoom(m_zoomMode == ZoomMode::Vertical ? 1.0 : factor,
                     m_zoomMode == ZoomMode::Horizontal ? 1.0 : factor);
    m_zoomMode = ZoomMode::Undecided; // each step looks anew at how the fingers have moved
}

void GraphViewController::doubleTapped(const Touches& touches) {
    if (Model::m().graphType() != 0) {
        return; // only functions of x are traced
    }
    if (m_graphView.traceMode() != TraceMode::None) {
        m_graphView.setTraceMode(TraceMode::None);
    } else {
        m_graphView.traceGraphWithSortedTouches(touches);
        showFunctionTraceMenu();
    }
}

// Machines without touch.

void GraphViewController::wheelTurned(Point point, double notches, bool horizontally, bool vertically) {
    m_graphView.holdRefinement();
    const double factor = std::pow(zoomBase(), -notches);
    // With equal scales both ranges change together, whatever is held.
    const bool both = horizontally == vertically || Model::m().sameScaleXAndY();
    m_graphView.zoomAbout(point, both || horizontally ? factor : 1, both || vertically ? factor : 1);
    m_graphView.resumeRefinement();
}

void GraphViewController::zoomAboutCentre(double notches) {
    constexpr double half = 0.5;
    wheelTurned({m_graphView.graphWidthInPixels() * half, m_graphView.graphHeightInPixels() * half}, notches,
                false, false);
}

void GraphViewController::arrowPressed(int across, int upward) {
    constexpr float part = 0.1F;
    if (m_graphView.traceMode() != TraceMode::None) {
        if (across != 0) {
            m_graphView.stepTrace(across);
        }
    } else {
        m_graphView.move(static_cast<float>(across * m_graphView.graphWidthInPixels()) * part,
                         static_cast<float>(upward * m_graphView.graphHeightInPixels()) * part);
    }
}

void GraphViewController::startOrEndTrace() {
    constexpr double half = 0.5;
    doubleTapped({{.id = 0, .location = {m_graphView.graphWidthInPixels() * half, 0}}});
}

void GraphViewController::endTrace() {
    if (m_graphView.traceMode() != TraceMode::None) {
        m_graphView.setTraceMode(TraceMode::None);
    }
}

struct GraphViewController::KeyMeaning {
    std::string_view key;
    void (*act)(GraphViewController&);
};

bool GraphViewController::pressHardwareKey(std::string_view key) {
    static constexpr std::array kMeanings{
        KeyMeaning{"Left", [](GraphViewController& graph) { graph.arrowPressed(-1, 0); }},
        KeyMeaning{"Right", [](GraphViewController& graph) { graph.arrowPressed(1, 0); }},
        KeyMeaning{"Up", [](GraphViewController& graph) { graph.arrowPressed(0, 1); }},
        KeyMeaning{"Down", [](GraphViewController& graph) { graph.arrowPressed(0, -1); }},
        KeyMeaning{"+", [](GraphViewController& graph) { graph.zoomAboutCentre(1); }},
        KeyMeaning{"=", [](GraphViewController& graph) { graph.zoomAboutCentre(1); }},
        KeyMeaning{"-", [](GraphViewController& graph) { graph.zoomAboutCentre(-1); }},
        KeyMeaning{"t", [](GraphViewController& graph) { graph.startOrEndTrace(); }},
        KeyMeaning{"Return", [](GraphViewController& graph) { graph.startOrEndTrace(); }},
        KeyMeaning{"Enter", [](GraphViewController& graph) { graph.startOrEndTrace(); }},
        KeyMeaning{"Escape", [](GraphViewController& graph) { graph.endTrace(); }},
        KeyMeaning{"r", [](GraphViewController& graph) { graph.m_graphView.resetBounds(); }},
        KeyMeaning{"Home", [](GraphViewController& graph) { graph.m_graphView.resetBounds(); }},
    };
    const auto* meaning = std::ranges::find(kMeanings, key, &KeyMeaning::key);
    if (meaning == kMeanings.end()) {
        return false;
    }
    meaning->act(*this);
    return true;
}

// Menus.

void GraphViewController::showFunctionTraceMenu() {
    presentAlert({.title = "Trace options",
                  .buttons = {"Cancel", "Find roots", "Find intersections", "Find minima and maxima",
                              "Just trace the graph"},
                  .onChosen = [screen = weak_from_this()](int index) {
                      if (const auto controller = screen.lock(); controller && Model::m().graphType() == 0) {
                          controller->functionTraceAlertClickedButtonAtIndex(index);
                      }
                  }});
}

void GraphViewController::functionTraceAlertClickedButtonAtIndex(int index) {
    constexpr std::array kModes{TraceMode::None, TraceMode::FindRoots, TraceMode::FindIntersections,
                                TraceMode::FindExtrema, TraceMode::JustTrace};
    if (index > 0 && std::cmp_less(index, kModes.size())) {
        m_graphView.setTraceMode(kModes.at(static_cast<std::size_t>(index)));
    }
}

void GraphViewController::showGraphMenu() {
    struct Choice {
        const char* text;
        void (*act)(GraphViewController&);
    };
    static constexpr std::array kChoices{
        Choice{"Cancel", [](GraphViewController&) {}},
        Choice{"Reset the view", [](GraphViewController& graph) { graph.m_graphView.resetBounds(); }},
        Choice{"Copy picture", [](GraphViewController& graph) { graph.copyPicture(); }},
        Choice{"Save picture", [](GraphViewController& graph) { graph.savePicture(); }},
    };
    std::vector<std::string> buttons;
    buttons.reserve(kChoices.size());
    for (const Choice& choice : kChoices) {
        buttons.emplace_back(choice.text);
    }
    presentAlert(
        {.title = "Graph", .buttons = std::move(buttons), .onChosen = [screen = weak_from_this()](int index) {
             if (const auto graph = screen.lock();
                 graph && index >= 0 && std::cmp_less(index, kChoices.size())) {
                 kChoices.at(static_cast<std::size_t>(index)).act(*graph);
             }
         }});
}

void GraphViewController::copyPicture() {
    std::vector<std::uint8_t> picture = m_picture ? m_picture->png() : std::vector<std::uint8_t>{};
    if (picture.empty()) {
        presentAlert({.title = "Copy picture", .message = "There is no picture to copy."});
        return;
    }
    generalPasteboard().setItems({{{std::string(kPngType), std::move(picture)}}});
}

void GraphViewController::savePicture() {
    const auto path = m_picture ? m_picture->savePng() : std::nullopt;
    presentAlert({.title = "Save picture",
                  .message = path ? "The picture is saved as " + *path + "."
                                  : "The picture could not be saved among your pictures."});
}

void GraphViewController::showSlowPlotChooser() {
    presentAlert({.title = "Options",
                  .message = "A slower plot is more accurate for some functions, especially if the graph has "
                             "small features.",
                  .buttons = {"Normal plot speed", "Slow plot", "Very slow plot"},
                  .onChosen = [screen = weak_from_this()](int index) {
                      constexpr std::array kMultipliers{1.0, 2.0, 5.0};
                      const auto controller = screen.lock();
                      if (!controller || index < 0 || !std::cmp_less(index, kMultipliers.size())) {
                          return;
                      }
                      GraphView& view = controller->m_graphView;
                      const double former = view.implicitGraphSpeedMultiplier();
                      const double chosen = kMultipliers.at(static_cast<std::size_t>(index));
                      view.setImplicitGraphSpeedMultiplier(chosen);
                      if (chosen > former) {
                          view.setNeedsDisplay();
                      }
                  }});
}

} // namespace velmora
