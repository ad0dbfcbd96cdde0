#pragma once

#include "graphing/plot/Deadline.h"
#include "graphing/plot/Viewport.h"

#include <memory>
#include <vector>

namespace velmora {

class Expression;

/// The values of y = f(x) at the columns of points, from the left edge to the right. They are taken coarse
/// to fine, so that those of a slow function show its whole course before all are there.
class ColumnSamples {
public:
    struct Sample {
        double x = 0;
        float screenY = 0;
        bool isReal = false;
        bool isTaken = false;
    };

    /// Takes none yet; none at all of an expression that is null. `acceptsAlmostReal`: values with an
    /// imaginary part that is only a rounding error count as real.
    ColumnSamples(std::shared_ptr<const Expression> expression, const Viewport& viewport,
                  bool acceptsAlmostReal);

    /// True while there are more to take when the deadline has passed.
    bool take(Deadline& deadline);
    bool isComplete() const { return m_stride == 0; }
    /// One a column, and the first.
    const std::vector<Sample>& samples() const { return m_samples; }

    /// Where a value stands on the screen.
    static float screenYOf(double value, const Viewport& viewport);

private:
    void takeOne(Sample& sample) const;

    std::shared_ptr<const Expression> m_expression;
    Viewport m_viewport;
    bool m_acceptsAlmostReal;
    std::vector<Sample> m_samples;
    std::size_t m_stride; ///< between the columns that are being taken
    std::size_t m_next = 0;
};

} // namespace velmora
