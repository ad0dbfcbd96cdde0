#include "calculator/table/TableText.h"

#include "engine/display/NumberDisplay.h"

#include <utility>

namespace velmora {

LabelRecord tableLabel(std::string text, const Rect& frame, const ValueTableMetrics& metrics,
                       const Color& color) {
    constexpr double smallestFont = 7;
    return {.text = std::move(text),
            .frame = frame,
            .fontSize = metrics.fontSize,
            .minimumFontSize = smallestFont,
            .textColor = color};
}

std::string valueText(const ValueTableView::Row* row, std::size_t index) {
    return row ? displayStringWithComplex(row->values[index]) : "…";
}

} // namespace velmora
