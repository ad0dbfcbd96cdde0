#include "graphing/plot/ParameterCurves.h"

#include "engine/tree/Expression.h"
#include "graphing/plot/Deadline.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace velmora {

namespace {

constexpr int kSteps = 1000;

Point onScreen(const Viewport& viewport, double x, double y) {
    return {static_cast<float>((x - viewport.xMin) / (viewport.xMax - viewport.xMin) * viewport.width),
            static_cast<float>(viewport.height -
                               (y - viewport.yMin) / (viewport.yMax - viewport.yMin) * viewport.height)};
}

double realPart(const Expression& expression, double variable) {
    return expression.valueWithVariableValue(variable).real();
}

} // namespace

std::optional<ParameterCurve> polarCurve(std::shared_ptr<const Expression> radius,
                                         const ParameterRange& angles, bool inDegrees,
                                         const Viewport& viewport) {
    if (!radius || !radius->isGraphable()) {
        return std::nullopt;
    }
    const auto polarPoint = [viewport](double r, double radians) {
        return onScreen(viewport, r * std::cos(radians), r * std::sin(radians));
    };
    constexpr double halfTurn = 180;
    return ParameterCurve{angles,
                          // The start takes its angle as radians in either unit: intended, for the first
                          // short line has always led from there.
                          [=] { return polarPoint(realPart(*radius, angles.start), angles.start); },
                          [=](double angle) {
                              const double r = realPart(*radius, angle);
                              return polarPoint(r, inDegrees ? angle * std::numbers::pi / halfTurn : angle);
                          }};
}

std::optional<ParameterCurve> parametricCurve(std::shared_ptr<const Expression> x,
                                              std::shared_ptr<const Expression> y,
                                              const ParameterRange& times, const Viewport& viewport) {
    if (!x || !y || !x->isGraphable() || !y->isGraphable()) {
        return std::nullopt;
    }
    const auto pointAt = [=](double time) {
        const double across = realPart(*x, time);
        return onScreen(viewport, across, realPart(*y, time));
    };
    return ParameterCurve{times, [=] { return pointAt(times.start); }, pointAt};
}

ParameterPlotter::ParameterPlotter(std::optional<ParameterCurve> curve, const Viewport& viewport,
                                   const DevicePixels& pixels)
    : Plotter(
          CurveDrawing({static_cast<double>(viewport.width), static_cast<double>(viewport.height)}, pixels)),
      m_shape(std::move(curve)) {
    if (!pixels.isOn()) {
        refine(HUGE_VAL);
    }
}

bool ParameterPlotter::isRefined() const { return !m_shape || m_step >= kSteps; }

bool ParameterPlotter::refine(double deadline) {
    if (isRefined()) {
        return false;
    }
    Deadline plotting(deadline);
    const auto& [start, end] = m_shape->range;
    const double step = (end - start) / kSteps;
    while (m_step < kSteps) {
        const Point point = m_step < 0 ? m_shape->start() : m_shape->pointAt(start + m_step * step);
        if (plotting.hasCutShort()) {
            break;
        }
        if (m_step < 0) {
            m_curve.moveTo(point);
        } else {
            m_curve.lineTo(point);
            m_metaData.wasGraphed = true;
        }
        ++m_step;
        if (plotting.hasPassed()) {
            break;
        }
    }
    return !isRefined();
}

} // namespace velmora
