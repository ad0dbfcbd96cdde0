#pragma once

#include "graphing/axes/HashMarks.h"
#include "graphing/frame/GraphSettings.h"
#include "graphing/plot/GraphMetaData.h"
#include "graphing/plot/Plotter.h"
#include "graphing/plot/Viewport.h"
#include "graphing/trace/GraphTrace.h"

#include <memory>
#include <vector>

namespace velmora {

/// The trace line of one frame.
struct FrameTrace {
    TraceMode mode = TraceMode::None;
    float screenX = 0; ///< of the line; a search that finds something moves it there
    double x = 0;      ///< the same on the plane, and exact where something was found
    /// Where the curves meet the line.
    struct Marker {
        std::size_t slot;
        float screenY;
    };
    std::vector<Marker> markers;

    bool isOn() const { return mode != TraceMode::None; }
};

/// One picture of the graph, worked out from viewport and settings: marks, curves, labels and trace. It may
/// be painted as often as asked. Curves that are steep are refined further while there is time.
class GraphFrame {
public:
    struct Curve {
        std::size_t slot;
        std::unique_ptr<Plotter> plotter;
    };

    GraphFrame() = default;
    /// A viewport that is not usable shows only the background.
    /// Without pixels every sample is taken here; otherwise refine does that, too.
    GraphFrame(const Viewport& viewport, GraphSettings settings, TraceMode traceMode, float traceScreenX,
               double pixelsPerPoint = 0);

    const Viewport& viewport() const { return m_viewport; }
    const GraphSettings& settings() const { return m_settings; }
    const GraphLook& look() const { return m_settings.look; }
    const HashMarks& verticalMarks() const { return m_vertical; }
    const HashMarks& horizontalMarks() const { return m_horizontal; }
    const std::vector<Curve>& curves() const { return m_curves; }
    /// One record a slot, as of what has been plotted so far.
    GraphMetaDataArray metaData() const;
    /// Of the screen that it is drawn for; 0 when its lines are wanted.
    double pixelsPerPoint() const { return m_pixelsPerPoint; }
    const FrameTrace& trace() const { return m_trace; }

    /// Goes on with what is left of the curves, by turns, until the clock passes the deadline (seconds of the
    /// monotonic clock).
    void refine(double deadline);
    bool isRefined() const;

private:
    void computeMarks();
    void computeCurves();
    void computeTrace();

    Viewport m_viewport;
    GraphSettings m_settings;
    HashMarks m_vertical;
    HashMarks m_horizontal;
    std::vector<Curve> m_curves;
    double m_pixelsPerPoint = 0;
    std::size_t m_turn = 0; ///< the curve that is refined next
    FrameTrace m_trace;
};

} // namespace velmora
