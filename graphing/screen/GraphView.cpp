#include "graphing/screen/GraphView.h"

#include "calculator/model/Model.h"
#include "graphing/axes/NumberPlacement.h"
#include "graphing/frame/GraphFramePainter.h"
#include "graphing/frame/GraphLabels.h"
#include "platform/machine/Clock.h"
#include "platform/machine/Timer.h"

#include <cmath>

namespace velmora {

namespace {

constexpr double kMovingSeconds = 0.004; // of plotting in a frame that follows a finger
constexpr double kSliceSeconds = 0.008;  // of plotting between two events
constexpr double kRefreshSeconds = 0.1;  // between two redraws while plotting goes on
constexpr double kRestSeconds = 0.2;     // without a change, until halving goes on
constexpr double kWideView = 500;        // points, beyond which lines are wider and numbers larger

} // namespace

GraphView::GraphView() : m_noGraphLabel(noGraphLabelRecord(false)) {}

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

void GraphView::changed(bool hasChanged) {
    if (hasChanged) {
        storeBoundsInModel();
        setNeedsDisplay();
    }
}

void GraphView::move(float dx, float dy) { changed(m_viewport.move(dx, dy)); }

void GraphView::zoom(double factorX, double factorY) { changed(m_viewport.zoom(factorX, factorY)); }

void GraphView::zoomAbout(Point point, double factorX, double factorY) {
    changed(m_viewport.zoomAbout(point, factorX, factorY));
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

void GraphView::traceGraphWithSortedTouches(const GraphFingers& fingers) {
    if (!fingers.empty()) {
        setScreenXForTracing(fingers.front().place.x);
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

bool GraphView::isWide() const { return m_size.width > kWideView; }

GraphLook GraphView::look() const { return {Model::m().graphBackgroundIsBlack(), isWide()}; }

double GraphView::graphLabelFontSize() const { return GraphLabelLayout::inView(m_size.width).fontSize; }

double GraphView::graphLabelWidth() const { return GraphLabelLayout::inView(m_size.width).width; }

double GraphView::graphLabelHeight() const { return GraphLabelLayout::inView(m_size.width).height; }

void GraphView::setNeedsDisplay() {
    m_frameIsCurrent = false;
    m_refinementTimer.cancel();
    m_needsDisplay.emit();
}

void GraphView::drawRect(DrawingContext& context) {
    const double pixelsPerPoint = context.pixelsPerPoint();
    if (!m_frameIsCurrent || m_frame.pixelsPerPoint() != pixelsPerPoint) {
        computeFrame(pixelsPerPoint);
        m_frameIsCurrent = true;
        resumeRefinement();
    }
    paintFrame(m_frame, context);
    m_lastShown = monotonicSeconds();
}

void GraphView::computeFrame(double pixelsPerPoint) {
    if (Model::m().sameScaleXAndY()) {
        matchXAndYScales();
    }
    m_frame = {}; // whose memory the new one takes over
    m_frame = GraphFrame(m_viewport, GraphSettings::ofModel(isWide()), m_traceMode, m_screenXForTracing,
                         pixelsPerPoint);
    m_frame.refine(monotonicSeconds() + kMovingSeconds);
    m_screenXForTracing = m_frame.trace().screenX;
    m_hashMarkLabels = m_frame.verticalMarks().labels;
    const auto& across = m_frame.horizontalMarks().labels;
    m_hashMarkLabels.insert(m_hashMarkLabels.end(), across.begin(), across.end());
    m_graphLabels = graphLabels(m_frame, GraphLabelLayout::inView(m_size.width));
    m_noGraphLabel = noGraphLabelRecord(Model::m().explainFailureToGraph());
}

std::vector<LabelRecord> GraphView::numbersBeside(const Rect& taken) const {
    std::vector<Rect> places{taken};
    for (const LabelRecord& label : m_graphLabels) {
        if (!label.text.empty()) {
            places.push_back(textRect(label));
        }
    }
    return placedNumbers(m_frame.verticalMarks(), m_frame.horizontalMarks(), m_size, places);
}

bool GraphView::isRefined() const { return m_frame.isRefined(); }

void GraphView::refineSlice() {
    const double now = monotonicSeconds();
    m_frame.refine(now + kSliceSeconds);
    if (isRefined()) {
        m_refinementTimer.cancel();
    }
    if (isRefined() || now - m_lastShown >= kRefreshSeconds) {
        m_graphLabels = graphLabels(m_frame, GraphLabelLayout::inView(m_size.width));
        m_needsDisplay.emit();
    }
}

void GraphView::holdRefinement() { m_refinementTimer.cancel(); }

void GraphView::resumeRefinement() {
    if (isRefined()) {
        return;
    }
    m_refinementTimer = startTimer(kRestSeconds, TimerKind::OneShot, [this] {
        m_lastShown = -HUGE_VAL; // long ago: the first slice shows at once
        m_refinementTimer = startTimer(0, TimerKind::Repeating, [this] { refineSlice(); });
    });
}

} // namespace velmora
