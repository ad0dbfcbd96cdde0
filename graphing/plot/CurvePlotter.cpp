#include "graphing/plot/CurvePlotter.h"

#include "engine/tree/Expression.h"
#include "platform/machine/Clock.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr double kFarApart = 30; // points between two samples, from which on they are not simply joined
constexpr int kDeepest = 50;
constexpr int kMostStepsBetweenLooks = 128; // at the clock, which costs as much as an evaluation
constexpr double kSoon = 0.0005;            // seconds between two looks, at least

} // namespace

float CurvePlotter::screenYOf(double value) const {
    const double h = m_viewport.height;
    return static_cast<float>(h - h * ((value - m_viewport.yMin) / (m_viewport.yMax - m_viewport.yMin)));
}

CurvePlotter::CurvePlotter(std::shared_ptr<const Expression> expression, const Viewport& viewport,
                           bool acceptsAlmostReal)
    : m_expression(std::move(expression)), m_viewport(viewport) {
    if (!m_expression || !m_expression->isGraphable()) {
        return;
    }
    const auto isRealEnough = [&](ComplexValue v) { return acceptsAlmostReal ? isAlmostReal(v) : isReal(v); };
    const double dx = (viewport.xMax - viewport.xMin) / viewport.width;
    double x = viewport.xMin;
    ComplexValue value = m_expression->valueWithVariableValue(x);
    float screenY = screenYOf(value.real());
    bool wasReal = isRealEnough(value);
    m_curve.moveTo({0, screenY});
    for (int column = 1; column <= viewport.width; ++column) {
        const double formerX = x;
        const float formerY = screenY;
        x += dx; // added up, so the last column is where the additions lead
        value = m_expression->valueWithVariableValue(x);
        screenY = screenYOf(value.real());
        const bool real = isRealEnough(value);
        if (!real) {
            m_metaData.wasSometimesComplex = true;
        }
        const auto screenX = static_cast<float>(column);
        if (!real || !wasReal) {
            m_curve.moveTo({screenX, screenY});
        } else {
            m_metaData.wasGraphed = true;
            if (std::fabs(screenY - formerY) < kFarApart) {
                m_curve.lineTo({screenX, screenY});
            } else {
                m_pending.push_back(
                    {{formerX, screenX - 1, formerY}, {x, screenX, screenY}, m_curve.addGap(), 1});
                if (std::isfinite(screenY)) {
                    m_curve.moveTo({screenX, screenY});
                }
            }
        }
        wasReal = real;
    }
    std::ranges::reverse(m_pending); // from left to right
}

/// A jump wholly off screen is not worth it: neither end is on screen, and both lie on the same side, or
/// one of them is no number.
bool CurvePlotter::isWorthHalving(double y1, double y2) const {
    const double h = m_viewport.height;
    const auto isOnScreen = [h](double y) { return y >= 0 && y <= h; };
    if (isOnScreen(y1) || isOnScreen(y2)) {
        return true;
    }
    return (y1 < 0 && y2 > h) || (y2 < 0 && y1 > h);
}

void CurvePlotter::investigate(const Task& task) {
    const Sample& from = task.from;
    const Sample& to = task.to;
    if (!isWorthHalving(from.screenY, to.screenY)) {
        return;
    }
    // The real part alone counts here, also of a complex value; intended: a test for reality at every step
    // would open curves that only round badly.
    Sample middle{(from.x + to.x) * 0.5, static_cast<float>((from.screenX + to.screenX) * 0.5F), 0};
    middle.screenY = screenYOf(m_expression->valueWithVariableValue(middle.x).real());
    const auto next = [&](const Sample& left, const Sample& right) {
        if (std::fabs(right.screenY - left.screenY) < kFarApart) {
            m_pending.push_back({left, right, task.gap, 0});
        } else if (task.depth < kDeepest) {
            m_pending.push_back({left, right, task.gap, task.depth + 1});
        }
    };
    next(middle, to); // is done after the left half
    next(from, middle);
}

void CurvePlotter::finishWithoutHalving() {
    std::erase_if(m_pending, [](const Task& task) { return task.depth > 0; });
    while (!m_pending.empty()) {
        const Task line = m_pending.back();
        m_pending.pop_back();
        m_curve.gap(line.gap).push_back(
            {{line.from.screenX, line.from.screenY}, {line.to.screenX, line.to.screenY}});
    }
}

bool CurvePlotter::refine(double deadline) {
    if (m_pending.empty()) {
        return false;
    }
    const double start = monotonicSeconds();
    const double end = std::min(deadline, start + kSecondsPerCurve - m_secondsUsed);
    int steps = 0;
    int stepsBetweenLooks = 1; // few for expressions that are slow
    double now = start;
    while (!m_pending.empty()) {
        const Task task = m_pending.back();
        m_pending.pop_back();
        if (task.depth == 0) {
            m_curve.gap(task.gap).push_back(
                {{task.from.screenX, task.from.screenY}, {task.to.screenX, task.to.screenY}});
            continue;
        }
        investigate(task);
        if (++steps < stepsBetweenLooks) {
            continue;
        }
        const double formerLook = std::exchange(now, monotonicSeconds());
        if (now > end) {
            break;
        }
        steps = 0;
        if (now - formerLook < kSoon && stepsBetweenLooks < kMostStepsBetweenLooks) {
            stepsBetweenLooks *= 2;
        }
    }
    m_secondsUsed += monotonicSeconds() - start;
    if (m_secondsUsed >= kSecondsPerCurve) {
        finishWithoutHalving();
    }
    return !m_pending.empty();
}

} // namespace velmora
