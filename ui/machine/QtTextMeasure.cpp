#include "ui/machine/QtTextMeasure.h"

#include "ui/painting/SystemFont.h"

#include <QFontMetricsF>

namespace velmora {

namespace {

// Scenes lay text out in fractions of a pixel, while metrics at a small size come in whole ones.
constexpr double kMeasuredSize = 1000;

QFontMetricsF metrics(std::string_view fontName) { return QFontMetricsF(sceneFont(fontName, kMeasuredSize)); }

} // namespace

double QtTextMeasure::width(std::string_view text, double fontSize, std::string_view fontName) const {
    const QString wholeText = QString::fromUtf8(text.data(), qsizetype(text.size()));
    return metrics(fontName).horizontalAdvance(wholeText) * fontSize / kMeasuredSize;
}

double QtTextMeasure::lineHeight(double fontSize, std::string_view fontName) const {
    return metrics(fontName).lineSpacing() * fontSize / kMeasuredSize;
}

} // namespace velmora
