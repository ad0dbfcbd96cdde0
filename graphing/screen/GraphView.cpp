#include "graphing/screen/GraphView.h"

#include "calculator/model/Model.h"
#include "calculator/model/SlotColors.h"
#include "engine/lines/ExpressionList.h"
#include "engine/tree/Expression.h"
#include "graphing/plot/ParameterCurves.h"
#include "platform/machine/Clock.h"
#include "platform/machine/Timer.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kSliceSeconds = 0.008; // of halving between two events
constexpr double kRestSeconds = 0.2;    // without a change, until halving goes on
constexpr double kWideView = 500;       // points, beyond which lines are wider and numbers larger
constexpr int kDegrees = 1;
constexpr int kFarApartGridLines = 1;

void drawLine(DrawingContext& context, Point from, Point to) {
    context.moveTo(from);
    context.lineTo(to);
    context.strokePath();
}

} // namespace

void GraphView::setSize(Size size) {
    if (size != m_size) {
        m_size = size;
        m_viewport.width = static_cast<int>(size.width);
        m_viewport.height = static_cast<int>(size.height);
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
    if (m_viewport.width <= 0 || m_viewport.height <= 0) {
        return;
    }
    storeBoundsInModel();
    Model& model = Model::m();
    const double range = model.xMaxForGraph() - model.xMinForGraph();
    const float shape = static_cast<float>(m_viewport.height) / static_cast<float>(m_viewport.width);
    double matching = static_cast<float>(range) * shape;
    if (!std::isnormal(static_cast<float>(matching))) {
        matching = range * shape; // ranges that single precision cannot hold
    }
    const double yMax = model.yMinForGraph() + matching;
    if (std::isfinite(yMax) && yMax > model.yMinForGraph()) {
        model.setYMaxForGraph(yMax);
    }
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
    m_graphTypeChanges =
        isTracing() ? Model::m().graphTypeChanged().subscribe([this] { setTraceMode(TraceMode::None); })
                    : Subscription();
    setNeedsDisplay();
}

void GraphView::setScreenXForTracing(float x) {
    m_screenXForTracing = x;
    setNeedsDisplay();
}

void GraphView::traceGraphWithSortedTouches(const Touches& touches) {
    if (!touches.empty()) {
        setScreenXForTracing(static_cast<float>(touches.front().location.x));
    }
}

void GraphView::stepTrace(int direction) {
    if (m_traceMode == TraceMode::JustTrace) {
        setScreenXForTracing(m_screenXForTracing + static_cast<float>(direction));
        return;
    }
    constexpr float step = 5;     // points; the search itself looks further to either side
    constexpr double apart = 0.5; // points from which on it is another result
    const auto width = static_cast<float>(m_viewport.width);
    float place = m_screenXForTracing + static_cast<float>(direction) * step;
    for (; place >= 0 && place <= width; place += static_cast<float>(direction) * step) {
        const auto found = tracedAbscissa(m_traceMode, Model::m().equations(), m_viewport,
                                          m_viewport.coordXWithScreenX(place));
        const float there = found ? m_viewport.screenCoordWithCoord(*found, false) : m_screenXForTracing;
        if ((there - m_screenXForTracing) * static_cast<float>(direction) > apart) {
            setScreenXForTracing(there);
            return;
        }
    }
}

bool GraphView::graphBackgroundIsBlack() const { return Model::m().graphBackgroundIsBlack(); }

Color GraphView::backgroundColor() const { return Color::white(graphBackgroundIsBlack() ? 0 : 1); }

Color GraphView::axisColor() const { return Color::white(graphBackgroundIsBlack() ? 1 : 0); }

Color GraphView::gridlineColor() const {
    constexpr double alphaOnWhite = 0.2;
    constexpr double alphaOnBlack = 0.3;
    return graphBackgroundIsBlack() ? Color::white(1, alphaOnBlack) : Color::white(0, alphaOnWhite);
}

bool GraphView::isWide() const { return m_size.width > kWideView; }

double GraphView::axisWidth() const { return isWide() ? 2 : 1; }

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
    m_axes.vertical = HashMarks::along(true, m_viewport, upward, isWide(), hashmarkColor());
    const auto across = model.sameScaleXAndY() && upward.hashmarkSpacing > 0
                            ? upward
                            : HashMarkSpacing::chosenFor(m_viewport.xMin, m_viewport.xMax, oneLinePerMark);
    m_axes.horizontal = HashMarks::along(false, m_viewport, across, isWide(), hashmarkColor());
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
                     graphPolar(*radius, {model.thetaStartForPolarGraph(), model.thetaEndForPolarGraph()},
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
                     graphParametrically(*x, *y,
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
    context.setAlignsToPixels(true);
    context.setStrokeColor(axisColor());
    context.setLineWidth(axisWidth());
    if (m_viewport.xMin < 0 && m_viewport.xMax > 0) {
        drawAxis(context, true);
    }
    if (m_viewport.yMin < 0 && m_viewport.yMax > 0) {
        drawAxis(context, false);
    }
    drawHashMarks(context, true, m_axes.vertical);
    drawHashMarks(context, false, m_axes.horizontal);
    context.setAlignsToPixels(false);
}

void GraphView::drawAxis(DrawingContext& context, bool vertical) const {
    const auto width = static_cast<float>(m_viewport.width);
    const auto height = static_cast<float>(m_viewport.height);
    if (vertical) {
        const auto range = static_cast<float>(m_viewport.xMax - m_viewport.xMin);
        const float x = -static_cast<float>(m_viewport.xMin) * width / range;
        drawLine(context, {x, 0}, {x, height});
    } else {
        const auto range = static_cast<float>(m_viewport.yMax - m_viewport.yMin);
        const float y = height + static_cast<float>(m_viewport.yMin) * height / range;
        drawLine(context, {0, y}, {width, y});
    }
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
    context.setStrokeColor(hashmarkColor());
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
        const Rect circle{m_screenXForTracing - radius, m_viewport.screenCoordWithCoord(y, true) - radius,
                          2 * radius, 2 * radius};
        context.setStrokeColor(slotColor(slot));
        context.setFillColor(slotColor(slot));
        context.fillEllipse(circle);
        context.strokeEllipse(circle);
    }
}

} // namespace velmora
