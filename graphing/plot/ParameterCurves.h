#pragma once

#include "graphing/plot/Plotter.h"
#include "graphing/plot/Viewport.h"

#include <functional>
#include <memory>
#include <optional>

namespace velmora {

class Expression;

/// The range of a curve's parameter.
struct ParameterRange {
    double start = 0;
    double end = 0;
};

/// A curve by its parameter: where it starts, and where it is at each value, on the screen.
struct ParameterCurve {
    ParameterRange range;
    std::function<Point()> start;
    std::function<Point(double)> pointAt;
};

/// r as a function of the angle, which the expression sees in the user's unit. Nothing of an expression that
/// is not graphable.
std::optional<ParameterCurve> polarCurve(std::shared_ptr<const Expression> radius,
                                         const ParameterRange& angles, bool inDegrees,
                                         const Viewport& viewport);
std::optional<ParameterCurve> parametricCurve(std::shared_ptr<const Expression> x,
                                              std::shared_ptr<const Expression> y,
                                              const ParameterRange& times, const Viewport& viewport);

/// Plots a curve as one line through a thousand values of its parameter, from the start on. The value at the
/// end of the range is not drawn, values that are not real count by their real part, and no jump is left
/// open; all of this is intended.
class ParameterPlotter final : public Plotter {
public:
    /// Nothing is plotted without a curve.
    ParameterPlotter(std::optional<ParameterCurve> curve, const Viewport& viewport,
                     const DevicePixels& pixels = {});

    bool refine(double deadline) override;
    bool isRefined() const override;

private:
    std::optional<ParameterCurve> m_shape;
    int m_step = -1; ///< the next; -1 for the start
};

} // namespace velmora
