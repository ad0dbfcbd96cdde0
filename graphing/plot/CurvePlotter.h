#pragma once

#include "engine/numbers/ComplexValue.h"
#include "graphing/plot/GraphMetaData.h"
#include "graphing/plot/PlottedCurve.h"
#include "graphing/plot/Viewport.h"

#include <memory>
#include <vector>

namespace velmora {

class Expression;

/// Plots y = f(x): one sample a column of points, and where neighbouring samples are far apart on screen,
/// halving between them. A jump that no halving closes is left open, so a pole is never crossed by a line.
class CurvePlotter {
public:
    /// The halving of one curve may take this long in all, in seconds; what is left then stays open.
    static constexpr double kSecondsPerCurve = 1;

    /// Takes the samples of all columns. Nothing is plotted for an expression that is not graphable.
    /// `acceptsAlmostReal`: values with an imaginary part that is only a rounding error count as real.
    CurvePlotter(std::shared_ptr<const Expression> expression, const Viewport& viewport,
                 bool acceptsAlmostReal);

    const PlottedCurve& curve() const { return m_curve; }
    const GraphMetaData& metaData() const { return m_metaData; }

    /// Goes on halving until all is done, the curve's time is used up, or the clock passes the deadline
    /// (seconds of the monotonic clock). True while there is more to do.
    bool refine(double deadline);
    bool isRefined() const { return m_pending.empty(); }

private:
    struct Sample {
        double x;
        float screenX;
        double screenY;
    };
    /// An interval to be halved, or a line that waits for what lies left of it.
    struct Task {
        Sample from;
        Sample to;
        std::size_t gap;
        int depth; ///< 0 for a line
    };

    float screenYOf(double value) const;
    void investigate(const Task& task);
    void finishWithoutHalving();
    bool isWorthHalving(double y1, double y2) const;

    std::shared_ptr<const Expression> m_expression;
    Viewport m_viewport;
    PlottedCurve m_curve;
    GraphMetaData m_metaData;
    std::vector<Task> m_pending; ///< the next one at the end
    double m_secondsUsed = 0;
};

} // namespace velmora
