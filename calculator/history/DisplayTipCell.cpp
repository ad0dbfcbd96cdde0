#include "calculator/history/DisplayTipCell.h"

#include <cmath>

namespace velmora {

namespace {

constexpr double kFontSizePerHeight = 0.4;
constexpr double kSmallestFontSize = 10;

} // namespace

DisplayTipCell::DisplayTipCell() {
    m_tipLabel.text = "TIP:  Settings are available on the \"More\" tab.";
    m_tipLabel.lineCount = 0;
    m_tipLabel.truncation = TextTruncation::WordWrap;
    m_tipLabel.minimumFontSize = kSmallestFontSize;
}

void DisplayTipCell::layout(Size size) {
    m_tipLabel.frame = {0, 0, size.width, size.height};
    m_tipLabel.fontSize = std::trunc(size.height * kFontSizePerHeight);
}

} // namespace velmora
