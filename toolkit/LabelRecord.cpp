#include "toolkit/LabelRecord.h"

#include "platform/machine/TextMeasure.h"

#include <algorithm>

namespace velmora {

double fittedFontSize(const LabelRecord& label) {
    if (!label.minimumFontSize || *label.minimumFontSize >= label.fontSize) {
        return label.fontSize;
    }
    const double width = textSize(label).width;
    if (width <= label.frame.width) {
        return label.fontSize;
    }
    // Widths grow in proportion to the font size, within the rounding of a screen face.
    return std::max(*label.minimumFontSize, label.fontSize * std::max(0.0, label.frame.width) / width);
}

Size textSize(const LabelRecord& label) {
    return {textWidth(label.text, label.fontSize, label.fontName),
            textLineHeight(label.fontSize, label.fontName)};
}

} // namespace velmora
