#pragma once

#include "graphing/screen/GraphGesture.h"
#include "graphing/screen/GraphView.h"
#include "platform/screens/Touch.h"
#include "platform/screens/ViewController.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// What the graph's screen can do with its picture.
class GraphPicture {
public:
    virtual ~GraphPicture() = default;

    /// The present picture, as a PNG file's bytes; empty when there is none.
    virtual std::vector<std::uint8_t> png() = 0;
    /// Writes it to a new file among the user's pictures and gives the file's path; nothing on failure.
    virtual std::optional<std::string> savePng() = 0;
};

/// The graph's screen: fingers, wheel and keys move the view, and menus trace and share it.
class GraphViewController final : public ViewController,
                                  public std::enable_shared_from_this<GraphViewController> {
public:
    GraphViewController();

    std::string className() const override { return "GraphViewController"; }
    std::string qmlFile() const override { return "Graph.qml"; }

    GraphView& graphView() { return m_graphView; }
    /// Whose picture is shared; it unsets itself (null) when it goes.
    void setPicture(GraphPicture* picture) { m_picture = picture; }

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    void viewDidAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;
    bool shouldAutorotate(Orientation orientation) const override;
    void willAnimateRotation(Orientation to) override;

    // Fingers. Each call is given all that are on the view, also those that did not change; an ending names
    // those that go and those that stay.

    void touchesBegan(const Touches& touches);
    void touchesMoved(const Touches& touches);
    void touchesEnded(const Touches& touches, std::size_t remaining);
    /// The system has taken the touches for itself: the gesture is over, and no tap.
    void touchesCancelled();

    // Machines without touch.

    /// Zooms about a point of the view, by so many notches of a wheel (away from the user: closer).
    void wheelTurned(Point point, double notches, bool horizontally, bool vertically);
    /// Arrows move the view by a tenth of it, or the trace line by a point or to the next result; "+" and "-"
    /// zoom about the centre; "t" or Enter starts or ends a trace at the middle, Escape ends it; "r" or Home
    /// starts over. False for any other key.
    bool pressHardwareKey(std::string_view key);

    // Menus.

    void showFunctionTraceMenu();
    void functionTraceAlertClickedButtonAtIndex(int index);
    /// Offers what else can be done with the graph.
    void showGraphMenu();
    void copyPicture();
    void savePicture();
    /// A choice that no menu opens: none of the graphs that it is about is drawn. Kept for the day they are.
    void showSlowPlotChooser();

    // The state of the gesture, as a test reads it.

    Point touchLocation() const { return {m_gesture.touchLocation().x, m_gesture.touchLocation().y}; }
    float touchDistance() const { return m_gesture.touchDistance(); }
    int zoomMode() const { return m_gesture.zoomMode(); }

private:
    /// Whether curves of the present graph type can be traced: those of functions of x alone.
    static bool canBeTraced();
    void doubleTapped(const GraphFingers& fingers);
    void arrowPressed(int across, int upward);
    void zoomAboutCentre(double notches);
    void startOrEndTrace();
    void endTrace();
    struct KeyMeaning;

    GraphView m_graphView;
    GraphGesture m_gesture{m_graphView};
    GraphPicture* m_picture = nullptr;
};

} // namespace velmora
