#include "graphing/plot/ParameterCurves.h"

#include "engine/tree/Expression.h"

#include <cmath>
#include <numbers>

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

/// `pointAt` gives the point at a parameter value.
template <class PointAt>
PlottedCurve plot(Point start, const ParameterRange& range, PointAt pointAt, GraphMetaData& metaData) {
    PlottedCurve curve;
    curve.moveTo(start);
    const double step = (range.end - range.start) / kSteps;
    for (int i = 0; i < kSteps; ++i) {
        curve.lineTo(pointAt(range.start + i * step));
    }
    metaData.wasGraphed = true;
    return curve;
}

} // namespace

PlottedCurve graphPolar(const Expression& radius, const ParameterRange& angles, bool inDegrees,
                        const Viewport& viewport, GraphMetaData& metaData) {
    if (!radius.isGraphable()) {
        return {};
    }
    const auto polarPoint = [&](double r, double radians) {
        return onScreen(viewport, r * std::cos(radians), r * std::sin(radians));
    };
    // The start takes its angle as radians in either unit: intended, for the first short line has always
    // led from there.
    const Point start = polarPoint(realPart(radius, angles.start), angles.start);
    constexpr double halfTurn = 180;
    return plot(
        start, angles,
        [&](double angle) {
            const double r = realPart(radius, angle);
            return polarPoint(r, inDegrees ? angle * std::numbers::pi / halfTurn : angle);
        },
        metaData);
}

PlottedCurve graphParametrically(const Expression& x, const Expression& y, const ParameterRange& times,
                                 const Viewport& viewport, GraphMetaData& metaData) {
    if (!x.isGraphable() || !y.isGraphable()) {
        return {};
    }
    const auto pointAt = [&](double time) {
        const double across = realPart(x, time);
        return onScreen(viewport, across, realPart(y, time));
    };
    return plot(pointAt(times.start), times, pointAt, metaData);
}

} // namespace velmora
