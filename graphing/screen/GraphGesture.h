#pragma once

#include "platform/screens/Touch.h"

#include <vector>

namespace velmora {

class GraphView;

/// A finger on the graph. Its place is in single precision, like all that is on screen.
struct GraphFinger {
    struct Place {
        float x = 0;
        float y = 0;
    };
    int id = 0;
    Place place;
    int tapCount = 1;
};
using GraphFingers = std::vector<GraphFinger>;

/// The fingers in the order that stays while they are down.
GraphFingers sortedFingers(const Touches& touches);

/// How much closer a step of the zoom brings the graph on this device.
double graphZoomBase();

/// What the fingers on a graph are doing: one moves the view, two stretch it in the direction in which they
/// move. When their number changes, what comes next starts afresh, so that the graph does not jump.
class GraphGesture {
public:
    /// The view must outlive this.
    explicit GraphGesture(GraphView& view) : m_view(view) {}

    /// A first finger: a pan may begin.
    void fingerBegan(const GraphFinger& finger);
    /// Two fingers: a pinch begins.
    void pinchBegan(const GraphFingers& fingers);
    void moveGraphWithTouch(const GraphFingers& fingers, bool smallMoveOK);
    void zoomGraphWithSortedTouches(const GraphFingers& fingers, bool smallZoomOK);

    /// As on a screen that has just been made.
    void reset();
    /// The gesture is over.
    void forget();
    /// The same, while the direction of the zoom is kept.
    void forgetPinch();
    void forgetZoomMode() { m_zoomMode = ZoomMode::Undecided; }

    /// Of a pan; (-1, -1) while there is none.
    GraphFinger::Place touchLocation() const { return m_touchLocation; }
    /// Between the fingers at the last step of a pinch; 0 while there is none.
    float touchDistance() const { return m_touchDistance; }
    int zoomMode() const { return static_cast<int>(m_zoomMode); }

private:
    enum class ZoomMode { Undecided = 0, Horizontal = 1, Vertical = 2, Both = 3 };

    ZoomMode zoomModeOf(GraphFinger::Place vector) const;

    GraphView& m_view;
    GraphFinger::Place m_touchLocation;
    float m_touchDistance = 0;
    GraphFinger::Place m_touchDifferenceVector; ///< between the fingers when the pinch began
    ZoomMode m_zoomMode = ZoomMode::Undecided;
};

} // namespace velmora
