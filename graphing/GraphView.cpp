#include "graphing/GraphView.h"

#include "calculator/Model.h"
#include "engine/Expression.h"
#include "engine/ExpressionList.h"
#include "graphing/ParameterCurves.h"
#include "graphing/SlotColors.h"
#include "platform/Clock.h"
#include "platform/Timer.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kSliceSeconds = 0.008; // of halving between two events
constexpr double kRestSeconds = 0.2;    // without a change, until halving goes on
constexpr int kDegrees = 1;
constexpr int kFarApartGridLines = 1;

void drawLine(DrawingContext& context, Point from, Point to) {
    context.moveTo(from);
    context.lineTo(to);
    context.strokePath();
}

} // namespace

void GraphView::setSize(Size size) {
    const int width = static_cast<int>(size.width);
    const int height = static_cast<int>(size.height);
    if (width != m_viewport.width || height != m_viewport.height) {
        m_viewport.width = width;
        m_viewport.height = height;
        setNeedsDisplay();
    }
}

void GraphView::readBoundsFromModel() {
    const Model& model = Model::m();
    m_viewport.xMin = model.xMinForGraph();
    m_viewport.yMin = model.yMinForGraph();
    m_viewport.xMax = model.xMaxForGraph();
    m_viewport.yMax = model.yMaxForGraph();
}

void GraphView::storeBoundsInModel() {
    Model& model = Model::m();
    model.setXMaxForGraph(m_viewport.xMax);
    model.setXMinForGraph(m_viewport.xMin);
    model.setYMaxForGraph(m_viewport.yMax);
    model.setYMinForGraph(m_viewport.yMin);
}

void GraphView::matchXAndYScales() {
    if (!m_viewport.isUsable()) {
        return;
    }
    storeBoundsInModel();
    const double range = m_viewport.xMax - m_viewport.xMin;
    const float shape = static_cast<float>(m_viewport.height) / static_cast<float>(m_viewport.width);
    double matching = static_cast<float>(range) * shape;
    if (!std::isnormal(static_cast<float>(matching))) {
        matching = range * shape; // ranges that single precision cannot hold
    }
    Model& model = Model::m();
    model.setYMaxForGraph(model.yMinForGraph() + matching);
    readBoundsFromModel();
}

void GraphView::move(float dx, float dy) {
    if (m_viewport.move(dx, dy)) {
        storeBoundsInModel();
        setNeedsDisplay();
    }
}

void GraphView::zoom(double factorX, double factorY) {
    if (m_viewport.zoom(factorX, factorY)) {
        storeBoundsInModel();
        setNeedsDisplay();
    }
}

void GraphView::zoomAbout(Point point, double factorX, double factorY) {
    if (m_viewport.zoomAbout(point, factorX, factorY)) {
        storeBoundsInModel();
        setNeedsDisplay();
    }
}

void GraphView::resetBounds() {
    Model::m().resetGraphBounds();
    readBoundsFromModel();
    setNeedsDisplay();
}

void GraphView::motionEnded() {
    if (Model::m().shakeToResetGraph()) {
        resetBounds();
    }
}

void GraphView::setTraceMode(TraceMode mode) {
    m_traceMode = mode;
    setNeedsDisplay();
}

void GraphView::setScreenXForTracing(float x) {
    m_screenXForTracing = x;
    setNeedsDisplay();
}

bool GraphView::graphBackgroundIsBlack() const { return Model::m().graphBackgroundIsBlack(); }

Color GraphView::backgroundColor() const { return Color::white(graphBackgroundIsBlack() ? 0 : 1); }

Color GraphView::axisColor() const { return Color::white(graphBackgroundIsBlack() ? 1 : 0); }

Color GraphView::gridlineColor() const {
    constexpr double alphaOnWhite = 0.2;
    constexpr double alphaOnBlack = 0.3;
    return graphBackgroundIsBlack() ? Color::white(1, alphaOnBlack) : Color::white(0, alphaOnWhite);
}

double GraphView::axisWidth() const { return m_viewport.width > kWideView ? 2 : 1; }

void GraphView::setNeedsDisplay() {
    m_frameIsCurrent = false;
    m_refinementTimer.cancel();
    m_needsDisplay.emit();
}

void GraphView::drawRect(DrawingContext& context) {
    if (!m_frameIsCurrent) {
        computeFrame();
        m_frameIsCurrent = true;
        resumeRefinement();
    }
    if (!m_viewport.isUsable()) {
        return;
    }
    drawAxes(context);
    context.setLineWidth(axisWidth());
    for (const SlotCurve& curve : m_curves) {
        context.setStrokeColor(slotColor(curve.slot));
        context.setFillColor(slotColor(curve.slot));
        curve.curve().draw(context);
    }
    if (isTracing()) {
        drawVerticalTraceLine(context);
        drawEllipses(context);
    }
}

void GraphView::computeFrame() {
    if (Model::m().graphType() != m_graphType) {
        m_graphType = Model::m().graphType();
        m_traceMode = TraceMode::None;
    }
    if (Model::m().sameScaleXAndY()) {
        matchXAndYScales();
    }
    m_metadata = {};
    m_axes = {};
    m_curves.clear();
    m_hashMarkLabels.clear();
    if (m_viewport.isUsable()) {
        computeAxes();
        computeCurves();
    }
    labelGraph();
}

void GraphView::computeAxes() {
    const Model& model = Model::m();
    const bool oneLinePerMark = model.graphGridLineType() == kFarApartGridLines;
    const auto upward = HashMarkSpacing::chosenFor(m_viewport.yMin, m_viewport.yMax, oneLinePerMark);
    m_axes.vertical = HashMarks::along(true, m_viewport, upward, axisColor());
    const auto across = model.sameScaleXAndY() && upward.hashmarkSpacing > 0
                            ? upward
                            : HashMarkSpacing::chosenFor(m_viewport.xMin, m_viewport.xMax, oneLinePerMark);
    m_axes.horizontal = HashMarks::along(false, m_viewport, across, axisColor());
    for (const HashMarks* marks : {&m_axes.vertical, &m_axes.horizontal}) {
        m_hashMarkLabels.insert(m_hashMarkLabels.end(), marks->labels.begin(), marks->labels.end());
    }
}

void GraphView::computeCurves() {
    Model& model = Model::m();
    const auto slots = [](const ExpressionList& list) {
        return std::min<std::size_t>(static_cast<std::size_t>(list.nExpressions()), kSlots);
    };
    switch (model.graphType()) {
    case 0:
        for (std::size_t slot = 0; slot < slots(model.equations()); ++slot) {
            auto plotter =
                std::make_unique<CurvePlotter>(model.equations().expression(static_cast<int>(slot)),
                                               m_viewport, model.roundSmallPartsOfComplexNumbers());
            m_metadata.at(slot) = plotter->metaData();
            m_curves.push_back({slot, std::move(plotter), {}});
        }
        break;
    case 1:
        for (std::size_t slot = 0; slot < slots(model.polarR()); ++slot) {
            if (const auto radius = model.polarR().expression(static_cast<int>(slot))) {
                m_curves.push_back(
                    {slot, nullptr,
                     plotPolar(*radius, {model.thetaStartForPolarGraph(), model.thetaEndForPolarGraph()},
                               model.angleMode() == kDegrees, m_viewport, m_metadata.at(slot))});
            }
        }
        break;
    case 2:
        for (std::size_t slot = 0; slot < slots(model.parametricX()); ++slot) {
            const auto x = model.parametricX().expression(static_cast<int>(slot));
            const auto y = model.parametricY().expression(static_cast<int>(slot));
            if (x && y) {
                m_curves.push_back(
                    {slot, nullptr,
                     plotParametric(*x, *y,
                                    {model.tStartForParametricGraph(), model.tEndForParametricGraph()},
                                    m_viewport, m_metadata.at(slot))});
            }
        }
        break;
    default:
        break;
    }
    refineSlice();
}

void GraphView::refineSlice() {
    const double deadline = monotonicSeconds() + kSliceSeconds;
    for (const SlotCurve& curve : m_curves) {
        if (curve.plotter && curve.plotter->refine(deadline)) {
            return; // out of time
        }
    }
}

bool GraphView::isRefined() const {
    return std::ranges::all_of(
        m_curves, [](const SlotCurve& curve) { return !curve.plotter || curve.plotter->isRefined(); });
}

void GraphView::holdRefinement() { m_refinementTimer.cancel(); }

void GraphView::resumeRefinement() {
    if (isRefined()) {
        return;
    }
    m_refinementTimer = startTimer(kRestSeconds, TimerKind::OneShot, [this] {
        m_refinementTimer = startTimer(0, TimerKind::Repeating, [this] {
            refineSlice();
            if (isRefined()) {
                m_refinementTimer.cancel();
            }
            m_needsDisplay.emit();
        });
    });
}

void GraphView::drawAxes(DrawingContext& context) const {
    context.setStrokeColor(axisColor());
    context.setLineWidth(axisWidth());
    const double width = m_viewport.width;
    const double height = m_viewport.height;
    if (m_viewport.xMin < 0 && m_viewport.xMax > 0) {
        drawLine(context, {m_axes.vertical.axisPosition, 0}, {m_axes.vertical.axisPosition, height});
    }
    if (m_viewport.yMin < 0 && m_viewport.yMax > 0) {
        drawLine(context, {0, m_axes.horizontal.axisPosition}, {width, m_axes.horizontal.axisPosition});
    }
    drawHashMarks(context, true, m_axes.vertical);
    drawHashMarks(context, false, m_axes.horizontal);
}

void GraphView::drawHashMarks(DrawingContext& context, bool vertical, const HashMarks& marks) const {
    constexpr double gridLineWidth = 1;
    constexpr double halfTick = 10;
    // A line across the axis, from one distance to the other.
    const auto across = [&](double along, double from, double to) {
        if (vertical) {
            drawLine(context, {from, along}, {to, along});
        } else {
            drawLine(context, {along, from}, {along, to});
        }
    };
    context.setStrokeColor(gridlineColor());
    context.setLineWidth(gridLineWidth);
    for (const float along : marks.gridLines) {
        across(along, 0, vertical ? m_viewport.width : m_viewport.height);
    }
    context.setStrokeColor(axisColor());
    context.setLineWidth(axisWidth());
    for (const float along : marks.ticks) {
        across(along, marks.axisPosition - halfTick, marks.axisPosition + halfTick);
    }
}

void GraphView::drawVerticalTraceLine(DrawingContext& context) const {
    context.setStrokeColor(gridlineColor());
    drawLine(context, {m_screenXForTracing, 0},
             {m_screenXForTracing, static_cast<double>(m_viewport.height)});
}

void GraphView::drawEllipses(DrawingContext& context) const {
    constexpr double radius = 2;
    const ExpressionList& equations = Model::m().equations();
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        const auto equation = equations.expression(static_cast<int>(slot));
        if (!equation || !equation->isGraphable()) {
            continue;
        }
        const double y = equation->roundedRealValueWithVariableValue(m_tracedX);
        if (!(y >= m_viewport.yMin && y <= m_viewport.yMax)) {
            continue;
        }
        const Rect circle{m_screenXForTracing - radius, m_viewport.screenY(y) - radius, 2 * radius,
                          2 * radius};
        context.setStrokeColor(slotColor(slot));
        context.setFillColor(slotColor(slot));
        context.fillEllipse(circle);
        context.strokeEllipse(circle);
    }
}

} // namespace velmora
