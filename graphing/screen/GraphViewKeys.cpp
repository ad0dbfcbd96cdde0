// Wheel and hardware keys on the graph.

#include "graphing/screen/GraphViewController.h"

#include "calculator/model/Model.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

void GraphViewController::wheelTurned(Point point, double notches, bool horizontally, bool vertically) {
    m_graphView.holdRefinement();
    const double factor = std::pow(graphZoomBase(), -notches);
    // With equal scales both ranges change together, whatever is held.
    const bool both = horizontally == vertically || Model::m().sameScaleXAndY();
    m_graphView.zoomAbout(point, both || horizontally ? factor : 1, both || vertically ? factor : 1);
    m_graphView.resumeRefinement();
}

void GraphViewController::zoomAboutCentre(double notches) {
    constexpr double half = 0.5;
    wheelTurned({m_graphView.graphWidthInPixels() * half, m_graphView.graphHeightInPixels() * half}, notches,
                false, false);
}

void GraphViewController::arrowPressed(int across, int upward) {
    constexpr float part = 0.1F;
    if (m_graphView.traceMode() != TraceMode::None) {
        if (across != 0) {
            m_graphView.stepTrace(across);
        }
    } else {
        m_graphView.move(static_cast<float>(across * m_graphView.graphWidthInPixels()) * part,
                         static_cast<float>(upward * m_graphView.graphHeightInPixels()) * part);
    }
}

void GraphViewController::startOrEndTrace() {
    constexpr double half = 0.5;
    doubleTapped({{.id = 0, .place = {static_cast<float>(m_graphView.graphWidthInPixels() * half), 0}}});
}

void GraphViewController::endTrace() {
    if (m_graphView.traceMode() != TraceMode::None) {
        m_graphView.setTraceMode(TraceMode::None);
    }
}

struct GraphViewController::KeyMeaning {
    std::string_view key;
    void (*act)(GraphViewController&);
};

bool GraphViewController::pressHardwareKey(std::string_view key) {
    static constexpr std::array kMeanings{
        KeyMeaning{"Left", [](GraphViewController& graph) { graph.arrowPressed(-1, 0); }},
        KeyMeaning{"Right", [](GraphViewController& graph) { graph.arrowPressed(1, 0); }},
        KeyMeaning{"Up", [](GraphViewController& graph) { graph.arrowPressed(0, 1); }},
        KeyMeaning{"Down", [](GraphViewController& graph) { graph.arrowPressed(0, -1); }},
        KeyMeaning{"+", [](GraphViewController& graph) { graph.zoomAboutCentre(1); }},
        KeyMeaning{"=", [](GraphViewController& graph) { graph.zoomAboutCentre(1); }},
        KeyMeaning{"-", [](GraphViewController& graph) { graph.zoomAboutCentre(-1); }},
        KeyMeaning{"t", [](GraphViewController& graph) { graph.startOrEndTrace(); }},
        KeyMeaning{"Return", [](GraphViewController& graph) { graph.startOrEndTrace(); }},
        KeyMeaning{"Enter", [](GraphViewController& graph) { graph.startOrEndTrace(); }},
        KeyMeaning{"Escape", [](GraphViewController& graph) { graph.endTrace(); }},
        KeyMeaning{"r", [](GraphViewController& graph) { graph.m_graphView.resetBounds(); }},
        KeyMeaning{"Home", [](GraphViewController& graph) { graph.m_graphView.resetBounds(); }},
    };
    const auto* meaning = std::ranges::find(kMeanings, key, &KeyMeaning::key);
    if (meaning == kMeanings.end()) {
        return false;
    }
    meaning->act(*this);
    return true;
}

} // namespace velmora
