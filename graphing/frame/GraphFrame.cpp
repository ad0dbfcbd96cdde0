#include "graphing/frame/GraphFrame.h"

#include "calculator/model/GraphTypeTable.h"
#include "engine/lines/ExpressionList.h"
#include "engine/tree/Expression.h"
#include "graphing/plot/CurvePlotter.h"
#include "platform/machine/Clock.h"

#include <algorithm>
#include <utility>

namespace velmora {

GraphFrame::GraphFrame(const Viewport& viewport, GraphSettings settings, TraceMode traceMode,
                       float traceScreenX, double pixelsPerPoint)
    : m_viewport(viewport), m_settings(std::move(settings)), m_pixelsPerPoint(pixelsPerPoint) {
    m_trace.mode = traceMode;
    m_trace.screenX = traceScreenX;
    if (m_viewport.isUsable()) {
        computeMarks();
        computeCurves();
        computeTrace();
    }
}

void GraphFrame::computeMarks() {
    const bool oneLinePerMark = m_settings.oneLinePerMark;
    const auto upward = HashMarkSpacing::chosenFor(m_viewport.yMin, m_viewport.yMax, oneLinePerMark);
    m_vertical = HashMarks::along(true, m_viewport, upward, look().isWide, look().hashmarkColor());
    const auto across = m_settings.sameScale && upward.hashmarkSpacing > 0
                            ? upward
                            : HashMarkSpacing::chosenFor(m_viewport.xMin, m_viewport.xMax, oneLinePerMark);
    m_horizontal = HashMarks::along(false, m_viewport, across, look().isWide, look().hashmarkColor());
}

void GraphFrame::computeCurves() {
    if (!m_settings.type) {
        return;
    }
    const DevicePixels pixels{m_pixelsPerPoint, look().axisWidth()};
    const ParameterRange& range = m_settings.range;
    for (const auto& [slot, expressions] : m_settings.curves) {
        switch (m_settings.type->type) {
        case GraphType::Function:
            m_curves.push_back({slot, std::make_unique<CurvePlotter>(expressions.front(), m_viewport,
                                                                     m_settings.acceptsAlmostReal, pixels)});
            break;
        case GraphType::Polar:
            m_curves.push_back(
                {slot, std::make_unique<ParameterPlotter>(
                           polarCurve(expressions.front(), range, m_settings.inDegrees, m_viewport),
                           m_viewport, pixels)});
            break;
        case GraphType::Parametric:
            m_curves.push_back(
                {slot, std::make_unique<ParameterPlotter>(
                           parametricCurve(expressions.front(), expressions.back(), range, m_viewport),
                           m_viewport, pixels)});
            break;
        }
    }
}

GraphMetaDataArray GraphFrame::metaData() const {
    GraphMetaDataArray all;
    for (const Curve& curve : m_curves) {
        all.at(curve.slot) = curve.plotter->metaData();
    }
    return all;
}

void GraphFrame::computeTrace() {
    if (!m_trace.isOn() || m_settings.lists.empty()) {
        return;
    }
    m_trace.x = m_viewport.coordXWithScreenX(m_trace.screenX);
    if (const auto found = tracedAbscissa(m_trace.mode, *m_settings.lists.front(), m_viewport, m_trace.x)) {
        m_trace.x = *found;
        m_trace.screenX = m_viewport.screenCoordWithCoord(*found, false);
    }
    for (const auto& [slot, expressions] : m_settings.curves) {
        const auto& equation = expressions.front();
        if (!equation || !equation->isGraphable()) {
            continue;
        }
        const double y = equation->roundedRealValueWithVariableValue(m_trace.x);
        if (y >= m_viewport.yMin && y <= m_viewport.yMax) {
            m_trace.markers.push_back({slot, m_viewport.screenCoordWithCoord(y, true)});
        }
    }
}

void GraphFrame::refine(double deadline) {
    // By turns, so that no curve waits for one that never ends.
    constexpr double turn = 0.001; // seconds
    std::size_t finished = 0;      // in a row
    while (finished < m_curves.size()) {
        const double now = monotonicSeconds();
        if (now >= deadline) {
            return;
        }
        Plotter& plotter = *m_curves[m_turn].plotter;
        finished = plotter.refine(std::min(deadline, now + turn)) ? 0 : finished + 1;
        m_turn = (m_turn + 1) % m_curves.size();
    }
}

bool GraphFrame::isRefined() const {
    return std::ranges::all_of(m_curves, [](const Curve& curve) { return curve.plotter->isRefined(); });
}

} // namespace velmora
