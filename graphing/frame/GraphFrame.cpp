#include "graphing/frame/GraphFrame.h"

#include "calculator/model/GraphTypeTable.h"
#include "engine/lines/ExpressionList.h"
#include "engine/tree/Expression.h"

#include <algorithm>
#include <utility>

namespace velmora {

GraphFrame::Curve::Curve(std::size_t slot, std::unique_ptr<CurvePlotter> plotter)
    : m_slot(slot), m_plotter(std::move(plotter)) {}

GraphFrame::Curve::Curve(std::size_t slot, PlottedCurve finished)
    : m_slot(slot), m_finished(std::move(finished)) {}

GraphFrame::GraphFrame(const Viewport& viewport, GraphSettings settings, TraceMode traceMode,
                       float traceScreenX)
    : m_viewport(viewport), m_settings(std::move(settings)) {
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
    for (const auto& [slot, expressions] : m_settings.curves) {
        GraphMetaData& metaData = m_metaData.at(slot);
        if (std::ranges::find(expressions, nullptr) != expressions.end()) {
            continue;
        }
        const ParameterRange& range = m_settings.range;
        switch (m_settings.type->type) {
        case GraphType::Function: {
            auto plotter =
                std::make_unique<CurvePlotter>(expressions.front(), m_viewport, m_settings.acceptsAlmostReal);
            metaData = plotter->metaData();
            m_curves.emplace_back(slot, std::move(plotter));
            break;
        }
        case GraphType::Polar:
            m_curves.emplace_back(
                slot, graphPolar(*expressions.front(), range, m_settings.inDegrees, m_viewport, metaData));
            break;
        case GraphType::Parametric:
            m_curves.emplace_back(slot, graphParametrically(*expressions.front(), *expressions.back(), range,
                                                            m_viewport, metaData));
            break;
        }
    }
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
    for (Curve& curve : m_curves) {
        if (curve.refine(deadline)) {
            return; // out of time
        }
    }
}

bool GraphFrame::isRefined() const { return std::ranges::all_of(m_curves, &Curve::isRefined); }

} // namespace velmora
