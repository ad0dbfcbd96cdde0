#include "graphing/screen/GraphGesture.h"

#include "calculator/model/Model.h"
#include "engine/environment/Environment.h"
#include "graphing/screen/GraphView.h"
#include "platform/machine/Device.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr GraphFinger::Place kNoPan{-1, -1};

GraphFinger::Place between(const GraphFingers& fingers) {
    return {fingers[0].place.x - fingers[1].place.x, fingers[0].place.y - fingers[1].place.y};
}

float distanceBetweenTouches(const GraphFingers& fingers) {
    if (fingers.size() != 2) {
        Environment::current().raiseDebugAlert(std::to_string(fingers.size()) + " touches!  Should be 2.");
        constexpr float noDistance = -666;
        return noDistance;
    }
    const GraphFinger::Place difference = between(fingers);
    return std::hypot(difference.x, difference.y);
}

float pinchDelta() {
    constexpr float onTablet = 30;
    constexpr float onPhone = 15;
    return isTablet() ? onTablet : onPhone;
}

} // namespace

GraphFingers sortedFingers(const Touches& touches) {
    GraphFingers fingers;
    fingers.reserve(touches.size());
    for (const Touch& touch : touches) {
        fingers.push_back({touch.id,
                           {static_cast<float>(touch.location.x), static_cast<float>(touch.location.y)},
                           touch.tapCount});
    }
    std::ranges::sort(fingers, {}, &GraphFinger::id);
    return fingers;
}

double graphZoomBase() {
    constexpr float onTablet = 1.1F;
    constexpr float onPhone = 1.25F;
    return isTablet() ? onTablet : onPhone;
}

void GraphGesture::fingerBegan(const GraphFinger& finger) {
    m_touchLocation = finger.place;
    m_touchDistance = 0;
}

void GraphGesture::pinchBegan(const GraphFingers& fingers) {
    m_touchLocation = kNoPan;
    m_touchDistance = distanceBetweenTouches(fingers);
    if (m_zoomMode == ZoomMode::Undecided) {
        m_touchDifferenceVector = between(fingers);
    }
}

void GraphGesture::reset() {
    m_touchDistance = 0;
    m_touchLocation = {};
}

void GraphGesture::forget() {
    forgetPinch();
    forgetZoomMode();
}

void GraphGesture::forgetPinch() {
    m_touchLocation = kNoPan;
    m_touchDistance = 0;
}

void GraphGesture::moveGraphWithTouch(const GraphFingers& fingers, bool smallMoveOK) {
    const GraphFinger::Place place = fingers.front().place;
    if (m_touchLocation.x < 0 && m_touchLocation.y < 0) {
        m_touchLocation = place;
        return;
    }
    const float dx = place.x - m_touchLocation.x;
    const float dy = place.y - m_touchLocation.y;
    constexpr float smallest = 2; // points; smaller ones add up
    if (!smallMoveOK && std::hypot(dx, dy) < smallest) {
        return;
    }
    m_view.move(-dx, dy); // the screen's y grows downward
    m_touchLocation = place;
}

/// In which direction the fingers have moved since the pinch began.
GraphGesture::ZoomMode GraphGesture::zoomModeOf(GraphFinger::Place vector) const {
    const float dx = m_touchDifferenceVector.x - vector.x;
    const float dy = m_touchDifferenceVector.y - vector.y;
    constexpr double upright = 1000;
    constexpr double steep = 2.3;
    const double ratio = dx == 0 ? upright : std::fabs(dy / dx);
    if (Model::m().sameScaleXAndY() || !(ratio > 1 / steep)) {
        return ZoomMode::Horizontal; // with equal scales y follows
    }
    return ratio > steep ? ZoomMode::Vertical : ZoomMode::Both;
}

void GraphGesture::zoomGraphWithSortedTouches(const GraphFingers& fingers, bool smallZoomOK) {
    const float distance = distanceBetweenTouches(fingers);
    if (distance < 0) {
        return;
    }
    if (m_touchDistance == 0) {
        m_touchDistance = distance;
        m_touchDifferenceVector = between(fingers);
        return;
    }
    if (!smallZoomOK && std::fabs(distance - m_touchDistance) < pinchDelta()) {
        return;
    }
    if (m_zoomMode == ZoomMode::Undecided) {
        m_zoomMode = zoomModeOf(between(fingers));
    }
    auto factor = static_cast<float>(std::pow(graphZoomBase(), (m_touchDistance - distance) / pinchDelta()));
    // A jump of the fingers is a jump of eight steps, of a phone's size on every device: intended.
    constexpr double phoneBase = 1.25;
    constexpr int steps = 8;
    if (factor < 0.1) {
        factor = static_cast<float>(std::pow(phoneBase, -steps));
    } else if (factor > 10) {
        factor = static_cast<float>(std::pow(phoneBase, steps));
    }
    m_touchDistance = distance;
    m_view.zoom(m_zoomMode == ZoomMode::Vertical ? 1.0 : factor,
                m_zoomMode == ZoomMode::Horizontal ? 1.0 : factor);
    forgetZoomMode(); // each step looks anew at how the fingers have moved
}

} // namespace velmora
