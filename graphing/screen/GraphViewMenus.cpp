// What the graph's alerts offer, and its picture.

#include "graphing/screen/GraphViewController.h"

#include "platform/machine/Alert.h"
#include "platform/machine/Pasteboard.h"

#include <array>
#include <utility>

namespace velmora {

void GraphViewController::showFunctionTraceMenu() {
    presentAlert({.title = "Trace options",
                  .buttons = {"Cancel", "Find roots", "Find intersections", "Find minima and maxima",
                              "Just trace the graph"},
                  .onChosen = [screen = weak_from_this()](int index) {
                      if (const auto controller = screen.lock(); controller && canBeTraced()) {
                          controller->functionTraceAlertClickedButtonAtIndex(index);
                      }
                  }});
}

void GraphViewController::functionTraceAlertClickedButtonAtIndex(int index) {
    constexpr std::array kModes{TraceMode::None, TraceMode::FindRoots, TraceMode::FindIntersections,
                                TraceMode::FindExtrema, TraceMode::JustTrace};
    if (index > 0 && std::cmp_less(index, kModes.size())) {
        m_graphView.setTraceMode(kModes.at(static_cast<std::size_t>(index)));
    }
}

void GraphViewController::showGraphMenu() {
    struct Choice {
        const char* text;
        void (*act)(GraphViewController&);
    };
    static constexpr std::array kChoices{
        Choice{"Cancel", [](GraphViewController&) {}},
        Choice{"Reset the view", [](GraphViewController& graph) { graph.m_graphView.resetBounds(); }},
        Choice{"Copy picture", [](GraphViewController& graph) { graph.copyPicture(); }},
        Choice{"Save picture", [](GraphViewController& graph) { graph.savePicture(); }},
    };
    std::vector<std::string> buttons;
    buttons.reserve(kChoices.size());
    for (const Choice& choice : kChoices) {
        buttons.emplace_back(choice.text);
    }
    presentAlert(
        {.title = "Graph", .buttons = std::move(buttons), .onChosen = [screen = weak_from_this()](int index) {
             if (const auto graph = screen.lock();
                 graph && index >= 0 && std::cmp_less(index, kChoices.size())) {
                 kChoices.at(static_cast<std::size_t>(index)).act(*graph);
             }
         }});
}

void GraphViewController::copyPicture() {
    std::vector<std::uint8_t> picture = m_picture ? m_picture->png() : std::vector<std::uint8_t>{};
    if (picture.empty()) {
        presentAlert({.title = "Copy picture", .message = "There is no picture to copy."});
        return;
    }
    generalPasteboard().setItems({{{std::string(kPngType), std::move(picture)}}});
}

void GraphViewController::savePicture() {
    const auto path = m_picture ? m_picture->savePng() : std::nullopt;
    presentAlert({.title = "Save picture",
                  .message = path ? "The picture is saved as " + *path + "."
                                  : "The picture could not be saved among your pictures."});
}

void GraphViewController::showSlowPlotChooser() {
    presentAlert({.title = "Options",
                  .message = "A slower plot is more accurate for some functions, especially if the graph has "
                             "small features.",
                  .buttons = {"Normal plot speed", "Slow plot", "Very slow plot"},
                  .onChosen = [screen = weak_from_this()](int index) {
                      constexpr std::array kMultipliers{1.0, 2.0, 5.0};
                      const auto controller = screen.lock();
                      if (!controller || index < 0 || !std::cmp_less(index, kMultipliers.size())) {
                          return;
                      }
                      GraphView& view = controller->m_graphView;
                      const double former = view.implicitGraphSpeedMultiplier();
                      const double chosen = kMultipliers.at(static_cast<std::size_t>(index));
                      view.setImplicitGraphSpeedMultiplier(chosen);
                      if (chosen > former) {
                          view.setNeedsDisplay();
                      }
                  }});
}

} // namespace velmora
