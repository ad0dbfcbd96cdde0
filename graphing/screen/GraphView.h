#pragma once

#include "graphing/axes/HashMarks.h"
#include "graphing/plot/CurvePlotter.h"
#include "graphing/plot/GraphMetaData.h"
#include "graphing/plot/PlottedCurve.h"
#include "graphing/plot/Viewport.h"
#include "graphing/trace/GraphTrace.h"
#include "platform/events/Signal.h"
#include "platform/screens/Color.h"
#include "platform/screens/DrawingContext.h"
#include "platform/screens/Touch.h"
#include "toolkit/LabelRecord.h"

#include <array>
#include <memory>
#include <vector>

namespace velmora {

class ExpressionList;

/// The plotting area: axes, grid, the curves of up to four equations, their labels and the trace line.
///
/// A change asks for a redraw; drawRect then works out the new frame and issues its commands. Where curves
/// are steep, halving between samples gets a few milliseconds of that frame and goes on while the view is at
/// rest, in slices between events, each of which asks for a redraw of the frame so far.
class GraphView {
public:
    static constexpr std::size_t kSlots = 4;

    GraphView();

    /// The extent in points. Whole points are used.
    void setSize(Size size);
    int graphWidthInPixels() const { return m_viewport.width; }
    int graphHeightInPixels() const { return m_viewport.height; }

    // The visible part of the plane is kept in the model; the view holds a copy.

    const Viewport& viewport() const { return m_viewport; }
    double xMin() const { return m_viewport.xMin; }
    double xMax() const { return m_viewport.xMax; }
    double yMin() const { return m_viewport.yMin; }
    double yMax() const { return m_viewport.yMax; }
    void readBoundsFromModel();
    void storeBoundsInModel();
    /// Keeps the x range and yMin, and makes a unit as long upward as across, where doubles can.
    void matchXAndYScales();

    // The user's hand. Each change is stored in the model at once; one that would leave the range of what
    // can be drawn is ignored.

    /// Shifts the view by so many points, x to the right and y upward.
    void move(float dx, float dy);
    /// Makes the ranges so many times as wide.
    void zoom(double factorX, double factorY);
    /// The same about a point of the view.
    void zoomAbout(Point point, double factorX, double factorY);
    void resetBounds();
    /// The device was shaken: starts over, where the settings allow it.
    void motionEnded();

    TraceMode traceMode() const { return m_traceMode; }
    void setTraceMode(TraceMode mode);
    float screenXForTracing() const { return m_screenXForTracing; }
    void setScreenXForTracing(float x);
    /// Puts the trace line under the first finger. Nothing without one.
    void traceGraphWithSortedTouches(const Touches& touches);
    /// Moves the trace line to the right (1) or left (-1): by a point, or while something is looked for to
    /// the next result on screen. Without one the line stays.
    void stepTrace(int direction);

    /// How much slower than usual curves of two variables may be plotted, 1 or more; none is drawn yet.
    double implicitGraphSpeedMultiplier() const { return m_implicitGraphSpeedMultiplier; }
    void setImplicitGraphSpeedMultiplier(double multiplier) { m_implicitGraphSpeedMultiplier = multiplier; }

    // Drawing.

    void setNeedsDisplay();
    /// Emitted when drawRect should be called.
    Signal<>& needsDisplay() { return m_needsDisplay; }
    void drawRect(DrawingContext& context);

    /// Holds back what is left of the halving: a finger is on the view.
    void holdRefinement();
    /// Goes on with it once the view has been at rest for a moment.
    void resumeRefinement();
    bool isRefined() const;

    bool graphBackgroundIsBlack() const;
    Color backgroundColor() const;
    Color axisColor() const;
    Color hashmarkColor() const { return axisColor(); }
    Color gridlineColor() const;
    double axisWidth() const;
    double graphLabelFontSize() const;
    double graphLabelWidth() const;
    double graphLabelHeight() const;

    /// The text records over the drawing, as of the last frame.
    const std::vector<LabelRecord>& hashMarkLabelArray() const { return m_hashMarkLabels; }
    const std::vector<LabelRecord>& graphLabelArray() const { return m_graphLabels; }
    const LabelRecord& noGraphLabel() const { return m_noGraphLabel; }
    /// One record a slot.
    const std::array<GraphMetaData, kSlots>& metadataArray() const { return m_metadata; }

private:
    struct Axes {
        HashMarks vertical;
        HashMarks horizontal;
    };
    /// What is drawn for one slot: a function, which may still be refined, or a finished curve.
    struct SlotCurve {
        std::size_t slot;
        std::unique_ptr<CurvePlotter> plotter;
        PlottedCurve finished;
        const PlottedCurve& curve() const { return plotter ? plotter->curve() : finished; }
    };

    // A frame is worked out, then drawn as often as asked.
    void computeFrame();
    void computeAxes();
    void computeCurves();
    void refineSlice();
    bool isWide() const;
    void drawAxes(DrawingContext& context) const;
    void drawAxis(DrawingContext& context, bool vertical) const;
    void drawHashMarks(DrawingContext& context, bool vertical, const HashMarks& marks) const;
    void drawVerticalTraceLine(DrawingContext& context) const;
    void drawEllipses(DrawingContext& context) const;
    bool isTracing() const { return m_traceMode != TraceMode::None; }

    // Labels (GraphViewLabels.cpp).
    void labelGraph();
    void createGraphLabels();
    void updateNoGraphLabel();
    std::string curveLabel(const ExpressionList& list, int slot) const;

    Size m_size;
    Viewport m_viewport;
    std::array<GraphMetaData, kSlots> m_metadata;
    std::vector<SlotCurve> m_curves;
    Axes m_axes;
    std::vector<LabelRecord> m_hashMarkLabels;
    std::vector<LabelRecord> m_graphLabels;
    LabelRecord m_noGraphLabel;
    TraceMode m_traceMode = TraceMode::None;
    float m_screenXForTracing = 0;
    double m_tracedX = 0;
    double m_implicitGraphSpeedMultiplier = 1;
    bool m_frameIsCurrent = false;
    Signal<> m_needsDisplay;
    Subscription m_refinementTimer;
    Subscription m_graphTypeChanges;
};

} // namespace velmora
