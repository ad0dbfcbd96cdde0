#include "graphing/plot/PlottedCurve.h"

namespace velmora {

void PlottedCurve::draw(DrawingContext& context) const {
    if (m_steps.empty()) {
        return;
    }
    for (const PathStep& step : m_steps) {
        switch (step.step) {
        case Step::Move:
            context.moveTo(step.point);
            break;
        case Step::Line:
            context.lineTo(step.point);
            break;
        case Step::Gap:
            for (const Segment& segment : m_gaps[step.gap]) {
                context.moveTo(segment.from);
                context.lineTo(segment.to);
                context.strokePath();
            }
            break;
        }
    }
    context.strokePath();
}

} // namespace velmora
