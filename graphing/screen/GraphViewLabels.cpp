// The words and numbers over the graph.

#include "graphing/screen/GraphView.h"

#include "calculator/model/Model.h"
#include "calculator/model/SlotColors.h"
#include "engine/display/NumberDisplay.h"
#include "engine/lines/ExpressionList.h"
#include "engine/tree/Expression.h"
#include "platform/machine/TextMeasure.h"
#include "platform/screens/ScreenMetrics.h"

#include <array>
#include <cmath>

namespace velmora {

namespace {

constexpr std::size_t kGraphLabels = 8;
constexpr double kLabelMargin = 20;

/// The lists whose curves are drawn, in the order of their labels.
std::vector<const ExpressionList*> drawnLists() {
    Model& model = Model::m();
    switch (model.graphType()) {
    case 0:
        return {&model.equations()};
    case 1:
        return {&model.polarR()};
    case 2:
        return {&model.parametricX(), &model.parametricY()};
    default:
        return {};
    }
}

} // namespace

GraphView::GraphView() {
    constexpr double noGraphLabelHeight = 100;
    m_noGraphLabel = {.text = "There are no graphable equations.  To enter an equation, go to the Equations "
                              "tab, choose one of the equations there, enter it, and press save.",
                      .frame = {0, 0, screenMetrics().screenSize().width, noGraphLabelHeight},
                      .textColor = Color::white(0),
                      .backgroundColor = Color::white(1),
                      .lineCount = 0,
                      .truncation = TextTruncation::WordWrap,
                      .hidden = true};
}

double GraphView::graphLabelFontSize() const {
    constexpr std::array kSizes{14.0, 19.0, 19.0, 29.0};
    const auto mode = static_cast<std::size_t>(Model::m().fontSizeMode());
    return kSizes.at(mode < kSizes.size() ? mode : 0);
}

double GraphView::graphLabelWidth() const { return m_size.width - 2 * kLabelMargin; }

double GraphView::graphLabelHeight() const { return std::trunc(textLineHeight(graphLabelFontSize())) + 1; }

void GraphView::updateNoGraphLabel() {
    m_noGraphLabel.frame.width = screenMetrics().screenSize().width;
    m_noGraphLabel.hidden = !Model::m().explainFailureToGraph();
}

/// Lays the eight lines out for the present size and font, all empty.
void GraphView::createGraphLabels() {
    constexpr double smallestFont = 11;
    const double height = graphLabelHeight();
    m_graphLabels.clear();
    for (std::size_t line = 0; line < kGraphLabels; ++line) {
        m_graphLabels.push_back(
            {.frame = {kLabelMargin, static_cast<double>(line) * height, graphLabelWidth(), height},
             .fontSize = graphLabelFontSize(),
             .minimumFontSize = smallestFont,
             .textColor = axisColor(),
             .truncation = TextTruncation::Clip});
    }
}

std::string GraphView::curveLabel(const ExpressionList& list, int slot) const {
    if (!isTracing()) {
        return list.descriptionWithIndex(slot);
    }
    const auto expression = list.expression(slot);
    if (!expression) {
        return {};
    }
    const ComplexValue value = expression->valueWithVariableValue(m_tracedX);
    const bool real = Model::m().roundSmallPartsOfComplexNumbers() ? isAlmostReal(value) : isReal(value);
    return real ? displayStringWithDouble(value.real()) : displayStringWithComplex(value);
}

void GraphView::labelGraph() {
    updateNoGraphLabel();
    createGraphLabels();
    std::size_t used = 0;
    const auto label = [&](std::string text, const Color& color) {
        if (used < m_graphLabels.size()) { // a ninth line has no place
            m_graphLabels[used].text = std::move(text);
            m_graphLabels[used].textColor = color;
            ++used;
        }
    };
    if (!m_viewport.isUsable()) {
        return;
    }
    if (isTracing()) {
        m_tracedX = m_viewport.coordXWithScreenX(m_screenXForTracing);
        if (const auto found = tracedAbscissa(m_traceMode, Model::m().equations(), m_viewport, m_tracedX)) {
            m_tracedX = *found;
            m_screenXForTracing = m_viewport.screenCoordWithCoord(*found, false);
        }
        label("x=" + displayStringWithDouble(m_tracedX), axisColor());
    }
    if (Model::m().putLabelsOnGraph() || isTracing()) {
        const auto lists = drawnLists();
        for (std::size_t slot = 0; slot < kSlots; ++slot) {
            if (!m_metadata.at(slot).wasGraphed) {
                continue;
            }
            for (const ExpressionList* list : lists) {
                std::string text = curveLabel(*list, static_cast<int>(slot));
                if (m_metadata.at(slot).wasSometimesComplex) {
                    text += " (complex values not shown)";
                }
                label(std::move(text), slotColor(slot));
            }
        }
    }
    if (isTracing()) {
        label("Double tap when done", axisColor());
    }
}

} // namespace velmora
