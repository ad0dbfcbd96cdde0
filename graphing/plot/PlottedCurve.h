#pragma once

#include "platform/screens/DrawingContext.h"

#include <vector>

namespace velmora {

/// A curve as it is to be drawn: moves and lines, and between some of them gaps, whose lines may be found
/// later. Each line in a gap is a path of its own.
class PlottedCurve {
public:
    struct Segment {
        Point from;
        Point to;
    };

    void moveTo(Point point) { m_steps.push_back({Step::Move, point, 0}); }
    void lineTo(Point point) { m_steps.push_back({Step::Line, point, 0}); }
    /// The number of the new gap.
    std::size_t addGap() {
        m_steps.push_back({Step::Gap, {}, m_gaps.size()});
        m_gaps.emplace_back();
        return m_gaps.size() - 1;
    }
    std::vector<Segment>& gap(std::size_t number) { return m_gaps[number]; }

    void draw(DrawingContext& context) const;

private:
    enum class Step : unsigned char { Move, Line, Gap };
    struct PathStep {
        Step step;
        Point point;
        std::size_t gap;
    };
    std::vector<PathStep> m_steps;
    std::vector<std::vector<Segment>> m_gaps;
};

} // namespace velmora
