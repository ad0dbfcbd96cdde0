#include "graphing/frame/GraphLabels.h"

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

std::vector<LabelRecord> emptyLabels(const GraphLabelLayout& layout, const Color& color) {
    constexpr double smallestFont = 11;
    std::vector<LabelRecord> labels;
    for (std::size_t line = 0; line < kGraphLabels; ++line) {
        labels.push_back(
            {.frame = {kLabelMargin, static_cast<double>(line) * layout.height, layout.width, layout.height},
             .fontSize = layout.fontSize,
             .minimumFontSize = smallestFont,
             .textColor = color,
             .truncation = TextTruncation::Clip});
    }
    return labels;
}

std::string valueText(const Expression& expression, const GraphFrame& frame) {
    const ComplexValue value = expression.valueWithVariableValue(frame.trace().x);
    const bool real = frame.settings().acceptsAlmostReal ? isAlmostReal(value) : isReal(value);
    return real ? displayStringWithDouble(value.real()) : displayStringWithComplex(value);
}

std::string curveLabel(const GraphFrame& frame, const ExpressionList& list, std::size_t slot) {
    const int index = static_cast<int>(slot);
    if (!frame.trace().isOn()) {
        return list.descriptionWithIndex(index);
    }
    const auto expression = list.expression(index);
    return expression ? valueText(*expression, frame) : std::string();
}

} // namespace

GraphLabelLayout GraphLabelLayout::inView(double viewWidth) {
    constexpr std::array kFontSizes{14.0, 19.0, 19.0, 29.0};
    const auto mode = static_cast<std::size_t>(Model::m().fontSizeMode());
    const double fontSize = kFontSizes.at(mode < kFontSizes.size() ? mode : 0);
    return {fontSize, viewWidth - 2 * kLabelMargin, std::trunc(textLineHeight(fontSize)) + 1};
}

std::vector<LabelRecord> graphLabels(const GraphFrame& frame, const GraphLabelLayout& layout) {
    const Color axisColor = frame.look().axisColor();
    std::vector<LabelRecord> labels = emptyLabels(layout, axisColor);
    if (!frame.viewport().isUsable()) {
        return labels;
    }
    std::size_t used = 0;
    const auto label = [&](std::string text, const Color& color) {
        if (used < labels.size()) { // a ninth line has no place
            labels[used].text = std::move(text);
            labels[used].textColor = color;
            ++used;
        }
    };
    const bool isTracing = frame.trace().isOn();
    if (isTracing) {
        label("x=" + displayStringWithDouble(frame.trace().x), axisColor);
    }
    const GraphMetaDataArray all = frame.metaData();
    for (std::size_t slot = 0; slot < kGraphSlots; ++slot) {
        const GraphMetaData& metaData = all.at(slot);
        if (!metaData.wasGraphed || !(frame.settings().showsLabels || isTracing)) {
            continue;
        }
        for (const ExpressionList* list : frame.settings().lists) {
            const char* note = metaData.wasSometimesComplex ? " (complex values not shown)" : "";
            label(curveLabel(frame, *list, slot) + note, slotColor(slot));
        }
    }
    if (isTracing) {
        label("Double tap when done", axisColor);
    }
    return labels;
}

LabelRecord noGraphLabelRecord(bool isShown) {
    constexpr double height = 100;
    return {.text = "There are no graphable equations.  To enter an equation, go to the Equations "
                    "tab, choose one of the equations there, enter it, and press save.",
            .frame = {0, 0, screenMetrics().screenSize().width, height},
            .textColor = Color::white(0),
            .backgroundColor = Color::white(1),
            .lineCount = 0,
            .truncation = TextTruncation::WordWrap,
            .hidden = !isShown};
}

} // namespace velmora
