#pragma once

#include "graphing/plot/ColumnSamples.h"
#include "graphing/plot/Plotter.h"
#include "graphing/plot/Viewport.h"

#include <deque>
#include <memory>
#include <vector>

namespace velmora {

class Expression;

/// Plots y = f(x): one sample a column of points, and where neighbouring samples are far apart on screen,
/// halving between them. A jump that no halving closes is left open, so a pole is never crossed by a line.
///
/// For a context that takes lines, every line is found, from left to right. On pixels, only what they show
/// counts: all gaps are halved a little before any is halved far, and a place is left once nothing that is
/// found there covers anything new.
class CurvePlotter final : public Plotter {
public:
    /// The halving of one curve may take this long in all, in seconds; what is left then stays open.
    static constexpr double kSecondsPerCurve = 1;

    /// Nothing is plotted for an expression that is not graphable. Without pixels all samples are taken here;
    /// otherwise refine takes them, and until all are there the curve is sketched from those that are.
    CurvePlotter(std::shared_ptr<const Expression> expression, const Viewport& viewport,
                 bool acceptsAlmostReal, const DevicePixels& pixels = {});

    bool refine(double deadline) override;
    bool isRefined() const override { return m_samples.isComplete() && m_strands.empty(); }

private:
    struct Place {
        double x;
        float screenX;
        double screenY;
    };
    /// An interval to be halved, or a line that waits for what lies left of it.
    struct Task {
        Place from;
        Place to;
        std::size_t gap;
        int depth; ///< 0 for a line
    };
    /// What is halved by turns.
    struct Strand {
        std::vector<Task> tasks; ///< the next one at the end
        int fruitless = 0;       ///< steps since one covered something new
    };

    void sketch();
    void connect();
    void halve(Deadline& deadline);
    bool workOff(Strand& strand, Deadline& deadline);
    void step(Strand& strand, const Deadline& deadline);
    void investigate(const Task& task, Strand& strand, const Deadline& deadline);
    void finishWithoutHalving();
    bool drawLine(const Task& line);
    bool isWorthHalving(double y1, double y2) const;

    std::shared_ptr<const Expression> m_expression;
    Viewport m_viewport;
    ColumnSamples m_samples;
    std::deque<Strand> m_strands;
    double m_secondsUsed = 0;
};

} // namespace velmora
