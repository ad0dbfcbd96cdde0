#pragma once

#include "graphing/frame/GraphFrame.h"
#include "graphing/screen/GraphGesture.h"
#include "platform/events/Signal.h"
#include "platform/screens/Color.h"
#include "platform/screens/DrawingContext.h"
#include "toolkit/LabelRecord.h"

#include <vector>

namespace velmora {

/// The plotting area: axes, grid, the curves of up to four equations, their labels and the trace line.
///
/// It holds what is seen of the plane and what is traced. A change asks for a redraw; drawRect then works out
/// the new GraphFrame and has it painted. What its curves need beyond a few milliseconds goes on while the
/// view is at rest, in slices between events; some ten times a second they ask for a redraw of the frame so
/// far. A context with pixels of its own is painted what the curves cover, any other one all of their lines.
class GraphView {
public:
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
    void traceGraphWithSortedTouches(const GraphFingers& fingers);
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

    /// Of the model's settings, at this moment.
    GraphLook look() const;
    bool graphBackgroundIsBlack() const { return look().isBlack; }
    Color backgroundColor() const { return look().backgroundColor(); }
    Color axisColor() const { return look().axisColor(); }
    Color hashmarkColor() const { return look().hashmarkColor(); }
    Color gridlineColor() const { return look().gridlineColor(); }
    double axisWidth() const { return look().axisWidth(); }
    double graphLabelFontSize() const;
    double graphLabelWidth() const;
    double graphLabelHeight() const;

    /// The text records over the drawing, as of the last frame.
    const std::vector<LabelRecord>& hashMarkLabelArray() const { return m_hashMarkLabels; }
    /// The numbers at the hash marks as they are written: on screen, clear of ticks, labels and each other,
    /// and of one more place that is taken. Numbers without room are left out.
    std::vector<LabelRecord> numbersBeside(const Rect& taken) const;
    const std::vector<LabelRecord>& graphLabelArray() const { return m_graphLabels; }
    const LabelRecord& noGraphLabel() const { return m_noGraphLabel; }
    /// One record a slot.
    GraphMetaDataArray metadataArray() const { return m_frame.metaData(); }

private:
    void computeFrame(double pixelsPerPoint);
    void refineSlice();
    void changed(bool hasChanged);
    bool isWide() const;
    bool isTracing() const { return m_traceMode != TraceMode::None; }

    Size m_size;
    Viewport m_viewport;
    TraceMode m_traceMode = TraceMode::None;
    float m_screenXForTracing = 0;
    double m_implicitGraphSpeedMultiplier = 1;
    GraphFrame m_frame;
    bool m_frameIsCurrent = false;
    double m_lastShown = 0; ///< when the frame was last drawn, by the monotonic clock
    std::vector<LabelRecord> m_hashMarkLabels;
    std::vector<LabelRecord> m_graphLabels;
    LabelRecord m_noGraphLabel;
    Signal<> m_needsDisplay;
    Subscription m_refinementTimer;
    Subscription m_graphTypeChanges;
};

} // namespace velmora
